#include "platform/jet/Aggregates.h"

#include <sqlite3.h>

#include <cstdint>
#include <limits>

#include "platform/error/ErrorNumber.h"
#include "platform/error/RuntimeError.h"
#include "platform/jet/Arguments.h"
#include "platform/jet/Money.h"

namespace velmar::jet {
namespace {

// The engine hands out zeroed memory for each group, so these need no construction.

struct SumState {
  std::int64_t count;
  std::int64_t units;  // ten-thousandths, as long as every value has whole ones
  double sum;
  bool inexact;
};

struct PositionState {
  sqlite3_value* value;
  std::int64_t place;
};

template <typename State>
State& StateOf(const Arguments& arguments) {
  void* memory = sqlite3_aggregate_context(arguments.Context(), sizeof(State));
  if (memory == nullptr) throw std::bad_alloc();
  return *static_cast<State*>(memory);
}

template <typename State>
State* FinalStateOf(const Arguments& arguments) {
  return static_cast<State*>(sqlite3_aggregate_context(arguments.Context(), 0));
}

void AddUp(Arguments& arguments) {
  auto& state = StateOf<SumState>(arguments);
  const double number = arguments.Number(0);
  ++state.count;
  state.sum += number;
  if (state.inexact) return;
  const auto units = TenThousandths(number);
  state.inexact = !units || __builtin_add_overflow(state.units, *units, &state.units);
}

double Total(const SumState& state) {
  return state.inexact ? state.sum : FromTenThousandths(state.units);
}

void FinishSum(Arguments& arguments) {
  const auto* state = FinalStateOf<SumState>(arguments);
  if (state == nullptr) {
    arguments.ReturnNull();
  } else {
    arguments.Return(Total(*state));
  }
}

void FinishAverage(Arguments& arguments) {
  const auto* state = FinalStateOf<SumState>(arguments);
  if (state == nullptr) {
    arguments.ReturnNull();
  } else {
    arguments.Return(Total(*state) / static_cast<double>(state->count));
  }
}

void Keep(Arguments& arguments, PositionState& state, std::int64_t place) {
  sqlite3_value* copy = sqlite3_value_dup(arguments.Raw(0));
  if (copy == nullptr) throw std::bad_alloc();
  sqlite3_value_free(state.value);
  state.value = copy;
  state.place = place;
}

void First(Arguments& arguments) {
  auto& state = StateOf<PositionState>(arguments);
  const std::int64_t place = arguments.Count() == 2 ? arguments.Integer(1) : 0;
  if (state.value == nullptr || place < state.place) Keep(arguments, state, place);
}

void Last(Arguments& arguments) {
  auto& state = StateOf<PositionState>(arguments);
  const std::int64_t place = arguments.Count() == 2 ? arguments.Integer(1) : 0;
  if (state.value == nullptr || place >= state.place) Keep(arguments, state, place);
}

void FinishPosition(Arguments& arguments) {
  auto* state = FinalStateOf<PositionState>(arguments);
  if (state == nullptr || state->value == nullptr) {
    arguments.ReturnNull();
    return;
  }
  sqlite3_result_value(arguments.Context(), state->value);
  sqlite3_value_free(state->value);
  state->value = nullptr;
}

template <FunctionBody Body>
void Finish(sqlite3_context* context) {
  RunFunction(Body, NullRule::kIsTaken, context, 0, nullptr);
}

struct EngineAggregate {
  const char* name;
  int count;
  EngineCallback step;
  void (*finish)(sqlite3_context*);
};

// A NULL is not added up; it would end the sum otherwise.
template <FunctionBody Body>
void Skip(sqlite3_context* context, int count, sqlite3_value** values) {
  if (sqlite3_value_type(values[0]) != SQLITE_NULL)
    RunFunction(Body, NullRule::kIsTaken, context, count, values);
}

constexpr EngineAggregate kAggregates[] = {
    {"jet_sum", 1, Skip<AddUp>, Finish<FinishSum>},
    {"jet_avg", 1, Skip<AddUp>, Finish<FinishAverage>},
    {"jet_first", -1, Callback<First, NullRule::kIsTaken>, Finish<FinishPosition>},
    {"jet_last", -1, Callback<Last, NullRule::kIsTaken>, Finish<FinishPosition>},
};

}  // namespace

void RegisterAggregates(sqlite3* database) {
  for (const EngineAggregate& aggregate : kAggregates) {
    const int result = sqlite3_create_function_v2(database, aggregate.name, aggregate.count,
                                                  SQLITE_UTF8 | SQLITE_DETERMINISTIC, nullptr, nullptr,
                                                  aggregate.step, aggregate.finish, nullptr);
    if (result != SQLITE_OK) {
      throw RuntimeError(kEngineFailure,
                         "No se pudo preparar el motor de datos: " + std::string(sqlite3_errstr(result)),
                         "Jet SQL");
    }
  }
}

}  // namespace velmar::jet
