#pragma once

#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "host/interfaces/CurrentError.h"
#include "host/interfaces/HostApi.h"
#include "host/interfaces/HostApplication.h"
#include "platform/ado/Connection.h"
#include "platform/controls/TextBox.h"
#include "platform/error/RuntimeError.h"

namespace velmar::testing {

/// What happened between a host and the wizard, in order. One call can be made to fail.
class CallLog {
 public:
  static constexpr long kFailure = 7000;

  /// Notes the call; the call that is to fail raises kFailure.
  void Note(const std::string& call) {
    calls_.push_back(call);
    if (failAt_ && *failAt_ + 1 == calls_.size()) throw RuntimeError(kFailure, "Falla " + call, "host");
  }
  /// The call with this number, from 0, fails.
  void FailAt(std::size_t call) { failAt_ = call; }
  std::vector<std::string> Take() {
    failAt_.reset();
    return std::exchange(calls_, {});
  }

 private:
  std::vector<std::string> calls_;
  std::optional<std::size_t> failAt_;
};

/// A host that notes each read of its members, those of the connections with the connection's state.
class RecordingHost : public HostApplication {
 public:
  RecordingHost(std::string mainText, std::string reportsText, std::shared_ptr<CallLog> log)
      : main(std::make_shared<ADODB::Connection>(std::move(mainText))),
        reports(std::make_shared<ADODB::Connection>(std::move(reportsText))),
        log_(std::move(log)) {}

  std::shared_ptr<ADODB::Connection> conGestion() const override {
    log_->Note("conGestion " + std::to_string(main->State()));
    return main;
  }
  std::shared_ptr<ADODB::Connection> coninformes() const override {
    log_->Note("coninformes " + std::to_string(reports->State()));
    return reports;
  }
  std::string RutaApp() const override {
    log_->Note("RutaApp");
    return "C:\\Quinvera";
  }
  std::string TituloAplicacion() const override { return "Quinvera"; }
  std::string Icono() const override {
    log_->Note("Icono");
    return icon;
  }
  std::int32_t IDUsuario() const override { return 7; }
  std::optional<bool> Brivana() const override { return std::nullopt; }

  std::shared_ptr<ADODB::Connection> main;
  std::shared_ptr<ADODB::Connection> reports;
  std::string icon;

 private:
  std::shared_ptr<CallLog> log_;
};

/// The host's API library, which notes its failures with the number that the host sees.
class RecordingApi : public HostApi {
 public:
  explicit RecordingApi(std::shared_ptr<CallLog> log) : log_(std::move(log)) {}

  void VerError(const std::string& rutina, const std::string& formulario,
                const std::string& componente) override {
    log_->Note("VerError " + rutina + " " + formulario + " " + componente + " " +
               std::to_string(CurrentError().Number()));
  }
  void SeleccionarTexto(controls::TextBox& caja) override {
    caja.SelStart(0);
    caja.SelLength(1000);
  }
  long validar_nif(const ADODB::Field&) override { return 0; }

 private:
  std::shared_ptr<CallLog> log_;
};

}  // namespace velmar::testing
