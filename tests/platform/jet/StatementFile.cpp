#include "platform/jet/StatementFile.h"

#include <fstream>
#include <stdexcept>

namespace velmar::jet {

StatementFile::StatementFile(const std::string& path) {
  std::ifstream file(path);
  if (!file) throw std::runtime_error("cannot read " + path);
  std::string line;
  std::string key;
  int number = 0;
  while (std::getline(file, line)) {
    ++number;
    if (line.empty() || line[0] == '#') continue;
    if (line[0] == ' ') {
      const std::string value = line.substr(line.find_first_not_of(' '));
      if (key == "rows") {
        cases_.back().rows.push_back(value);
      } else {
        Take(key + "+", value, number);
      }
      continue;
    }
    if (line.starts_with("== ")) {
      cases_.push_back({});
      cases_.back().name = line.substr(3);
      cases_.back().line = number;
      continue;
    }
    const auto colon = line.find(':');
    if (colon == std::string::npos)
      throw std::runtime_error(path + ":" + std::to_string(number) + ": no key");
    key = line.substr(0, colon);
    const auto start = line.find_first_not_of(' ', colon + 1);
    Take(key, start == std::string::npos ? std::string() : line.substr(start), number);
  }
}

void StatementFile::Take(const std::string& key, const std::string& value, int line) {
  const bool more = key.back() == '+';
  const std::string name = more ? key.substr(0, key.size() - 1) : key;
  std::string* place = nullptr;
  if (name == "setup" || name == "external") {
    auto& list = name == "setup" ? setup_ : externalSetup_;
    if (!more) list.emplace_back();
    place = &list.back();
  } else if (!cases_.empty()) {
    StatementCase& current = cases_.back();
    if (name == "jet") place = &current.jet;
    if (name == "sql") place = &current.sql;
    if (name == "names") place = &current.names;
    if (name == "after") place = &current.after;
    if (name == "error") place = &current.error;
    if (name == "rows") {
      current.hasRows = true;
      if (!value.empty()) current.rows.push_back(value);
      return;
    }
  }
  if (place == nullptr) throw std::runtime_error("line " + std::to_string(line) + ": unknown key " + name);
  if (more) *place += " ";
  *place += value;
}

}  // namespace velmar::jet
