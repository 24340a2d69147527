// What the tests of the window program share: the example house in a folder of its own, away from the user's
// settings.
#pragma once

#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <string>

#include "form/oberflaeche.h"
#include "platform/einstellungen.h"
#include "store/projekt.h"
#include "store/projektdatei.h"
#include "store/sitzung.h"
#include "zavlink/formfenster.h"

namespace zav::fenster {

class Fenster : public testing::Test {
 protected:
  void SetUp() override {
    ordner_ = std::filesystem::temp_directory_path() / ("fenster_test." + std::to_string(getpid()));
    std::filesystem::create_directories(ordner_);
    setenv("XDG_CONFIG_HOME", ordner_.c_str(), 1);
    std::filesystem::copy_file(EINFAMILIENHAUS_DATEI, haus(),
                               std::filesystem::copy_options::overwrite_existing);
    sitzung = Sitzung{};
    einstellungen = Einstellungen{};
    projekt.Projekt_name = haus();
    ASSERT_EQ(Projekt_laden(), Laden::geladen);
  }
  void TearDown() override {
    Oberflaeche_setzen(nullptr);
    std::filesystem::remove_all(ordner_);
  }
  std::string haus() const { return (ordner_ / "haus.zav").string(); }

 private:
  std::filesystem::path ordner_;
};

inline QWidget* Widget_von(const Formfenster& f, const Steuerelement& e) {
  const auto w = f.gebautes().widgets.find(&e);
  return w == f.gebautes().widgets.end() ? nullptr : w->second;
}

}  // namespace zav::fenster
