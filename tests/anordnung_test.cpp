// Every form's layout holds each of its controls exactly once: one that is missing nobody can use, one that stands
// there twice has two widgets.
#include <gtest/gtest.h>

#include <set>

#include "app/app_eigenschaften_seite.h"
#include "app/ip_kameras.h"
#include "app/zavapp_form.h"
#include "editor/actmask.h"
#include "editor/actmask_init.h"
#include "editor/actmask_timer.h"
#include "editor/actmask_uhr.h"
#include "editor/backref.h"
#include "editor/dimmermode.h"
#include "editor/einmask.h"
#include "editor/einmask8.h"
#include "editor/timer_trepp.h"
#include "editor/touchpanel_referenz.h"
#include "enocean/enocean_definition.h"
#include "enocean/enocean_send.h"
#include "form/drehbuch.h"
#include "time/form_setup_uhr.h"
#include "time/uhr.h"
#include "weather/wetterdisplay.h"
#include "weather/wetterlogik.h"

namespace zav {
namespace {

template <class F, class... A>
void Pruefen(A... argumente) {
  F form(argumente...);
  const auto platziert = Platzierte(form.anordnung());
  using Menge = std::multiset<const Steuerelement*>;
  EXPECT_EQ(platziert.size(), form.elemente().size()) << form.name();
  EXPECT_EQ(Menge(platziert.begin(), platziert.end()), Menge(form.elemente().begin(), form.elemente().end()))
      << form.name();
}

TEST(Anordnung, EveryControlIsPlacedOnce) {
  const Drehbuch d;
  Projekt_reset();
  Pruefen<Actmask>(0, "");
  Pruefen<Actmask_init>();
  Pruefen<Actmask_timer>(0, "");
  Pruefen<Actmask_uhr>(0, "");
  Pruefen<Backref>();
  Pruefen<Dimmermode>();
  Pruefen<Einmask>();
  Pruefen<Einmask8>();
  Pruefen<Timer_trepp>();
  Pruefen<Touchpanel_Referenz>();
  Pruefen<Form_Setup_uhr>();
  Pruefen<Uhr>();
  Pruefen<Wetterdisplay>();
  Pruefen<Wetterlogik>(0, Funktionen_oeffnen());
  Pruefen<Enocean_Definition>(0);
  Pruefen<Enocean_Send>();
  Pruefen<App_eigenschaften_seite>(0, 0);
  Pruefen<IP_Kameras>();
  Pruefen<ZAVapp_Form>();
}

}  // namespace
}  // namespace zav
