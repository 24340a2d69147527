// Every form: each control has a name of its own and stands in the layout exactly once, and every command
// does something.
#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <set>

#include "app/app_eigenschaften_seite.h"
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
#include "editor/timer_trepp.h"
#include "editor/touchpanel_referenz.h"
#include "enocean/enocean_definition.h"
#include "enocean/enocean_send.h"
#include "form/drehbuch.h"
#include "service/bootloader.h"
#include "service/infofenster.h"
#include "service/init_flash.h"
#include "shell/datei.h"
#include "shell/eingabehilfe.h"
#include "shell/fotos.h"
#include "shell/gruss.h"
#include "shell/haupt.h"
#include "shell/setup.h"
#include "shell/storentimer.h"
#include "time/form_setup_uhr.h"
#include "time/uhr.h"
#include "time/uhr_astro.h"
#include "time/uhr_astro_rechner.h"
#include "time/uhrseite.h"
#include "weather/wetterdisplay.h"
#include "weather/wetterlogik.h"

namespace zav {
namespace {

template <class F, class... A>
void Hinzu(std::vector<std::unique_ptr<Formular>>& liste, A&&... a) {
  liste.push_back(std::make_unique<F>(std::forward<A>(a)...));
}

std::vector<std::unique_ptr<Formular>> Alle_formulare() {
  std::vector<std::unique_ptr<Formular>> f;
  Hinzu<Actmask>(f, 0, "");
  Hinzu<Actmask_uhr>(f, 0, "");
  Hinzu<Actmask_timer>(f, 0, "");
  Hinzu<Actmask_init>(f);
  Hinzu<Backref>(f);
  Hinzu<Dimmermode>(f);
  Hinzu<Einmask>(f);
  Hinzu<Einmask8>(f);
  Hinzu<Timer_trepp>(f);
  Hinzu<Touchpanel_Referenz>(f);
  Hinzu<Wetterdisplay>(f);
  Hinzu<Wetterlogik>(f, 0, nullptr);
  Hinzu<Enocean_Definition>(f, 0);
  Hinzu<Enocean_Send>(f);
  Hinzu<App_eigenschaften_seite>(f, 0, 0);
  Hinzu<IP_Kameras>(f);
  Hinzu<ZAVapp_Form>(f);
  Hinzu<Bootloader>(f);
  Hinzu<Infofenster>(f);
  Hinzu<Init_flash>(f);
  Hinzu<Datei>(f);
  Hinzu<Eingabehilfe>(f);
  Hinzu<Fotos>(f);
  Hinzu<Gruss>(f);
  Hinzu<Haupt>(f);
  Hinzu<Setup>(f);
  Hinzu<Storentimer>(f);
  Hinzu<Form_Setup_uhr>(f);
  Hinzu<Uhr>(f);
  Hinzu<Uhr_Astro>(f, 0, "", "");
  Hinzu<Uhr_Astro_Rechner>(f);
  Hinzu<Uhrseite>(f);
  return f;
}

TEST(Anordnung, EachControlOfEachFormStandsInItOnce) {
  Drehbuch d;
  for (const auto& f : Alle_formulare()) {
    std::map<const Steuerelement*, int> platziert;
    const Anordnung baum = f->anordnung();
    for (const Steuerelement* e : Platzierte(baum)) ++platziert[e];
    std::set<std::string> namen;
    for (const Steuerelement* e : f->elemente()) {
      EXPECT_EQ(platziert[e], 1) << f->name() << "." << e->name();
      EXPECT_TRUE(namen.insert(e->name()).second) << f->name() << "." << e->name() << " twice";
      const auto* const taste = dynamic_cast<const Taste*>(e);
      if (taste == nullptr) continue;
      EXPECT_TRUE(taste->wenn_gedrueckt || taste->wenn_rechts_gedrueckt || !taste->frei || !taste->sichtbar)
          << f->name() << "." << e->name() << " does nothing";
    }
    EXPECT_EQ(platziert.size(), f->elemente().size()) << f->name() << " places what is not its own";
  }
  EXPECT_EQ(d.maengel(), "");
}

}  // namespace
}  // namespace zav
