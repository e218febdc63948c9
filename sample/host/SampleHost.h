#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

#include "host/interfaces/HostApplication.h"

namespace velmar::sample {

/// The sample charity's management application: its two databases, closed at first, and its settings.
class SampleHost final : public HostApplication {
 public:
  struct Settings {
    std::string folder;           ///< where Gestion.mdb and Informes.mdb lie, and the help file
    std::string mainPassword;     ///< empty: none
    std::string reportsPassword;  ///< empty: none
    std::string title = "Gestión de colaboradores";
    std::string icon;  ///< a picture file; empty: none
    std::int32_t user = 1;
    std::optional<bool> brivana;
  };

  explicit SampleHost(Settings settings);

  std::shared_ptr<ADODB::Connection> conGestion() const override { return main_; }
  std::shared_ptr<ADODB::Connection> coninformes() const override { return reports_; }
  std::string RutaApp() const override { return settings_.folder; }
  std::string TituloAplicacion() const override { return settings_.title; }
  std::string Icono() const override { return settings_.icon; }
  std::int32_t IDUsuario() const override { return settings_.user; }
  std::optional<bool> Brivana() const override { return settings_.brivana; }

 private:
  Settings settings_;
  std::shared_ptr<ADODB::Connection> main_;
  std::shared_ptr<ADODB::Connection> reports_;
};

}  // namespace velmar::sample
