#include "zavlink/formenschau.h"

#include <QApplication>
#include <algorithm>

#include "app/app_eigenschaften_seite.h"
#include "app/ip_kameras.h"
#include "app/zavapp_form.h"
#include "editor/actmask.h"
#include "editor/actmask_init.h"
#include "editor/actmask_timer.h"
#include "editor/actmask_uhr.h"
#include "editor/apparatwahl.h"
#include "editor/auswahl_taster.h"
#include "editor/backref.h"
#include "editor/dialog_kombination.h"
#include "editor/dimmermode.h"
#include "editor/einmask.h"
#include "editor/einmask8.h"
#include "editor/layoutwahl.h"
#include "editor/timer_trepp.h"
#include "editor/touchpanel_referenz.h"
#include "enocean/enocean_definition.h"
#include "enocean/enocean_send.h"
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
#include "store/katalog.h"
#include "store/projekt.h"
#include "time/form_setup_uhr.h"
#include "time/uhr.h"
#include "time/uhr_astro.h"
#include "time/uhr_astro_rechner.h"
#include "time/uhrseite.h"
#include "weather/wetterdisplay.h"
#include "weather/wetterlogik.h"
#include "zavlink/formfenster.h"

namespace zav::fenster {

namespace {

// The first index of a field that holds something, 0 when none does.
template <class F>
int Erstes(const F& leer, int anzahl) {
  for (int i = 0; i < anzahl; ++i) {
    if (leer[i] != 0) return i;
  }
  return 0;
}

// Number of the first placed device of a kind, -1 = none; and its first address.
int Apparat_finden(const std::function<bool(int)>& passt) {
  for (int d = 0; d < apparate; ++d) {
    if (passt(projekt.App_typ[d])) return d;
  }
  return -1;
}
int Adresse_von(int d) {
  const auto lauf = d < 0 ? std::nullopt : Apparat_adressen(projekt, d);
  return lauf ? lauf->von : -1;
}

template <class F, class... A>
std::function<std::unique_ptr<Formular>()> Stueck(A... argumente) {
  return [=] { return std::make_unique<F>(argumente...); };
}

// A form, brought to a state by the user's acts.
template <class F, class... A>
std::function<std::unique_ptr<Formular>()> Stueck_nach(std::function<void(F&)> taten, A... argumente) {
  return [=]() -> std::unique_ptr<Formular> {
    auto f = std::make_unique<F>(argumente...);
    taten(*f);
    return f;
  };
}

// A form whose command is seen at work.
template <class F>
Vorgang Lauf(Taste F::*befehl, std::function<bool(const F&)> sehenswert, Taste F::*ende) {
  return {.beginnen = [=](Formular& f) { (static_cast<F&>(f).*befehl).druecken(); },
          .sehenswert = [=](const Formular& f) { return sehenswert(static_cast<const F&>(f)); },
          .beenden =
              [=](Formular& f) {
                Taste& t = static_cast<F&>(f).*ende;
                if (t.frei && t.sichtbar) t.druecken();
              }};
}

constexpr std::ptrdiff_t ereigniszeilen = 8;  // of the log that fill a picture

bool Protokoll_voll(const Haupt& f) {
  const std::string& text = f.Terminal_Fenster.text();
  const std::size_t anfang = text.find("F00");
  return anfang != std::string::npos &&
         std::count(text.begin() + static_cast<std::ptrdiff_t>(anfang), text.end(), '\n') > ereigniszeilen;
}

}  // namespace

std::vector<Schaustueck> Formenschau() {
  const int ereignis = Erstes(projekt.Ein_leer, 1024);
  const int uhr = Erstes(projekt.Uhr_leer, 256);
  const int schritt = Erstes(projekt.Tev_leer, 64);
  const int uhr_sonne = Erstes(projekt.Uhr_astro, 256);
  const int wetter =
      std::max(0, Adresse_von(Apparat_finden([](int typ) { return typ == apparat_wetterstation; })));
  const int sender =
      std::max(0, Apparat_finden([](int typ) { return typ > 0 && Apparat_funkart(typ) != 0; }));
  const int app = std::max(0, Apparat_finden([](int typ) { return typ > 0 && Apparat_funkart(typ) == 0; }));
  const auto seite = [](int n) { return [n](Actmask& f) { f.TabStrip1.waehlen(n); }; };
  return {
      {"gruss", Stueck<Gruss>()},
      {"gruss-neuerungen", Stueck_nach<Gruss>([](Gruss& f) { f.Command2.druecken(); })},
      {"haupt", Stueck<Haupt>()},
      {"terminal", Stueck<Haupt>(), Lauf<Haupt>(&Haupt::protokoll, Protokoll_voll, &Haupt::Command7)},
      {"datei", Stueck<Datei>()},
      {"setup", Stueck<Setup>()},
      {"eingabehilfe", Stueck<Eingabehilfe>()},
      {"storentimer", Stueck<Storentimer>()},
      {"fotos", Stueck<Fotos>()},
      {"einmask8", Stueck<Einmask8>()},
      {"einmask8-wetter", Stueck_nach<Einmask8>([](Einmask8& f) {
         for (const auto& k : f.TreeView1.knoten()) {
           if (k.text.find("etter") != std::string::npos) return f.TreeView1.waehlen(k.schluessel);
         }
       })},
      {"layoutwahl", Stueck<Layoutwahl>(0)},
      {"apparatwahl", Stueck<Apparatwahl_Feller>()},
      {"apparatwahl-enocean", Stueck<Apparatwahl_Enocean>()},
      {"adressen", Stueck<Dialog_Kombination>(std::string("12"), 2)},
      {"funktionen-schalten", Stueck<Actmask>(ereignis, std::string("Erdgeschoss - Küche - Licht"))},
      {"funktionen-dimmen",
       Stueck_nach<Actmask>(seite(1), ereignis, std::string("Erdgeschoss - Küche - Licht"))},
      {"funktionen-timer",
       Stueck_nach<Actmask>(seite(2), ereignis, std::string("Erdgeschoss - Küche - Licht"))},
      {"funktionen-schaltuhr", Stueck<Actmask_uhr>(uhr, std::string("Aussenlicht - 19.30.00"))},
      {"funktionen-schaltuhr-dimmen", Stueck_nach<Actmask_uhr>([](Actmask_uhr& f) { f.TabStrip1.waehlen(1); },
                                                               uhr, std::string("Aussenlicht - 19.30.00"))},
      {"funktionen-zeitschritt", Stueck<Actmask_timer>(schritt, std::string("Treppenhaus, Schritt 1"))},
      {"neustart", Stueck<Actmask_init>()},
      {"neustart-dimmen", Stueck_nach<Actmask_init>([](Actmask_init& f) { f.TabStrip1.waehlen(1); })},
      {"dimmermodus", Stueck<Dimmermode>()},
      {"timer", Stueck<Timer_trepp>()},
      {"gruppen", Stueck<Einmask>()},
      {"taster", Stueck<Auswahl_Taster>()},
      {"taster-2005", Stueck<Auswahl_Taster_2>()},
      {"suche", Stueck<Backref>()},
      {"touchpanel", Stueck<Touchpanel_Referenz>()},
      {"schaltuhren", Stueck<Uhr>()},
      {"sequenzer", Stueck<Form_Setup_uhr>()},
      {"schaltzeit", Stueck<Uhr_Astro>(uhr_sonne, std::string("Aussenlicht"), std::string("Untergang"))},
      {"schaltzeit-fest", Stueck<Uhr_Astro>(0, std::string("Storen auf"), std::string("06.30.00"))},
      {"sonnen-info", Stueck<Uhr_Astro_Rechner>()},
      {"sonnen-info-kalender",
       Stueck_nach<Uhr_Astro_Rechner>([](Uhr_Astro_Rechner& f) { f.Command2.druecken(); })},
      {"wetterlogik", Stueck<Wetterlogik>(wetter, Funktionen_oeffnen{})},
      {"pruefbedingungen",
       Stueck_nach<Wetterlogik>([](Wetterlogik& f) { f.Command2.druecken(); }, wetter, Funktionen_oeffnen{})},
      {"wetterdisplay", Stueck<Wetterdisplay>()},
      {"enocean_definition", Stueck<Enocean_Definition>(sender)},
      {"enocean_send", Stueck<Enocean_Send>()},
      {"enocean_send-laeuft", Stueck_nach<Enocean_Send>([](Enocean_Send& f) { f.Check1.haken(true); }),
       Lauf<Enocean_Send>(
           &Enocean_Send::Command1, [](const Enocean_Send& f) { return *f.ProgressBar1.wert > 40; },
           &Enocean_Send::Command5)},
      {"app-eigenschaften", Stueck<App_eigenschaften_seite>(app, 0)},
      {"kameras", Stueck<IP_Kameras>()},
      {"zavapp", Stueck<ZAVapp_Form>()},
      {"init_flash", Stueck<Init_flash>()},
      {"init_flash-laeuft", Stueck<Init_flash>(),
       Lauf<Init_flash>(
           &Init_flash::Command3, [](const Init_flash& f) { return *f.ProgressBar1.wert > 50; },
           &Init_flash::Command2)},
      {"info", Stueck<Infofenster>()},
      {"bootloader", Stueck<Bootloader>()},
      {"uhr-stellen", Stueck<Uhrseite>()},
  };
}

bool Vorfuehren(const Schaustueck& stueck, Stille_oberflaeche& oberflaeche,
                const std::function<void(Formfenster&)>& betrachten) {
  const std::unique_ptr<Formular> form = stueck.bauen();
  Formfenster fenster(*form, nullptr);
  fenster.show();
  form->beim_oeffnen();
  const auto zeigen = [&] {
    fenster.nachholen();
    for (int runde = 0; runde < 4; ++runde) QApplication::processEvents();
    betrachten(fenster);
  };
  if (!stueck.vorgang.beginnen) {
    zeigen();
    return true;
  }
  bool gesehen = false;
  oberflaeche.bei_doevents = [&] {
    QApplication::processEvents();
    if (gesehen || !stueck.vorgang.sehenswert(*form)) return;
    gesehen = true;
    zeigen();
    stueck.vorgang.beenden(*form);
  };
  stueck.vorgang.beginnen(*form);
  oberflaeche.bei_doevents = nullptr;
  return gesehen;
}

}  // namespace zav::fenster
