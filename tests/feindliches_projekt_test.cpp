// A project file can hold any number where an address, a type or a time belongs. What is made of such a
// project may be wrong, but nothing stops: neither a transfer nor a report nor any window.
#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <type_traits>

#include "app/app_eigenschaften_seite.h"
#include "app/deskriptor.h"
#include "app/ip_kameras.h"
#include "app/zavapp_form.h"
#include "editor/actmask.h"
#include "editor/actmask_init.h"
#include "editor/actmask_timer.h"
#include "editor/actmask_uhr.h"
#include "editor/backref.h"
#include "editor/dialog_kombination.h"
#include "editor/dimmermode.h"
#include "editor/einmask.h"
#include "editor/einmask8.h"
#include "editor/ereignissuche.h"
#include "editor/timer_trepp.h"
#include "editor/touchpanel_referenz.h"
#include "enocean/enocean_definition.h"
#include "enocean/enocean_send.h"
#include "form/drehbuch.h"
#include "shell/bericht.h"
#include "shell/storentimer.h"
#include "store/felder.h"
#include "store/kennzahlen.h"
#include "store/projektdatei.h"
#include "time/form_setup_uhr.h"
#include "time/uhr.h"
#include "time/uhr_astro.h"
#include "transfer/plan.h"
#include "weather/wetterdisplay.h"
#include "weather/wetterlogik.h"

namespace zav {
namespace {

// Numbers just beside and far beyond every limit.
i16 Boese_zahl(std::mt19937& zufall) {
  static constexpr int zahlen[] = {-32768, -640, -2,  -1,  0,   1,    2,    3,    15,   16,
                                   17,     20,   21,  47,  48,  63,   64,   127,  128,  255,
                                   256,    511,  512, 639, 640, 1023, 1024, 4095, 4096, 32767};
  return static_cast<i16>(zahlen[zufall() % std::size(zahlen)]);
}
str Boeser_text(std::mt19937& zufall) {
  static const str texte[] = {
      "",         "0",        "-1",         "1",        "256",           "99999999999",        "640",
      "24.00.00", "99:99:99", "31.02.20",   "00.00.00", "\x1b[2J",       "Untergang + Zufall", "ä",
      "12",       "6.6.",     "29.02.2027", "FFFFFFFF", "Zeit + Zufall", "2147483647"};
  return zufall() % 40 == 0 ? str(5000, 'x') : texte[zufall() % std::size(texte)];
}

Projekt Feindlich(unsigned saat) {
  std::mt19937 zufall(saat);
  Projekt p;
  Felder_besuchen(p, [&]<class T>(std::string_view, T& feld) {
    const auto setzen = [&](auto& e) {
      using E = std::remove_reference_t<decltype(e)>;
      if constexpr (std::is_same_v<E, str>) {
        e = Boeser_text(zufall);
      } else {
        e = static_cast<E>(Boese_zahl(zufall));
      }
    };
    if constexpr (requires { feld.alle(); }) {
      for (auto& e : feld.alle()) setzen(e);
    } else {
      setzen(feld);
    }
  });
  // As a file brings it.
  p.Datei_version = "910";
  p.Projekt_name = "Haus";
  Projekt q;
  EXPECT_TRUE(Projekt_lesen(Projekt_schreiben(p), q));
  q.Projekt_name = "Haus";
  return q;
}

// Opens the form with each of the arguments and lays it out.
template <class F, class... A>
void Oeffnen(std::initializer_list<int> stellen, A... argumente) {
  for (const int stelle : stellen) {
    F form(stelle, argumente...);
    form.anordnung();
  }
}
template <class... F>
void Oeffnen() {
  (F().anordnung(), ...);
}

TEST(Feindliches_projekt, HaeltWederSendenNochBerichteNochFensterAn) {
  for (const unsigned saat : {1U, 2U, 3U}) {
    SCOPED_TRACE(saat);
    projekt = Feindlich(saat);
    EXPECT_NE(Abbild(projekt, einstellungen, {.nur_geaenderte = false}), "");
    Drehbuch d;  // boxes answer themselves; what they say does not matter here
    Oeffnen<Actmask>({0, 1, 511, 1023}, "");
    Oeffnen<Actmask_uhr>({0, 255}, "");
    Oeffnen<Actmask_timer>({0, 63}, "");
    Oeffnen<Wetterlogik>({0, 252}, [](int, const std::string&) {});
    Oeffnen<Enocean_Definition>({0, 4095});
    Oeffnen<App_eigenschaften_seite>({0, 4080}, 3);
    Oeffnen<Actmask_init, Dimmermode, Timer_trepp, Backref, Einmask, Touchpanel_Referenz, Uhr, Form_Setup_uhr,
            Wetterdisplay, Enocean_Send, IP_Kameras, ZAVapp_Form, Storentimer>();
    Dialog_Kombination("7", 1).anordnung();
    EXPECT_NE(App_xml_bauen(projekt), "");
    EXPECT_LE(Kennzahlen_von(projekt).adressen, apparate * adressen);
    {
      Einmask8 maske;
      const auto knoten = maske.TreeView1.knoten();
      for (std::size_t k = 0; k < knoten.size(); k += 1 + knoten.size() / 16) {
        maske.TreeView1.waehlen(knoten[k].schluessel);
        for (auto& platz : maske.Image3) {
          if (platz.sichtbar) platz.druecken();
        }
      }
    }
    for (const int a : {0, 511}) Ereignisse_suchen({Ziel::Art::Relais, a});
    for (const int a : {0, 127}) Ereignisse_suchen({Ziel::Art::Dimmer, a});
    // Every device claims every address.
    projekt.Ein_relais = {};
    projekt.Ein_dimmer = {};
    projekt.Uhr_relais = {};
    projekt.Uhr_dimmer = {};
    projekt.Tev_relais = {};
    projekt.Tev_dimmer = {};
    std::ranges::fill(projekt.Ein_relais.zeile(0), i16{1});
    for (int a = 0; a < apparate; ++a) {
      projekt.App_text[a] = "0";
      projekt.App_text2[a] = "256";
    }
    EXPECT_LT(Bericht().size(), std::size_t{200} << 20) << "a report is no longer than its project";
  }
  projekt = {};
}

}  // namespace
}  // namespace zav
