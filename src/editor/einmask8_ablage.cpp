// The device clipboard: cut, copy, delete, paste.
#include <algorithm>
#include <array>
#include <utility>

#include "basis/melder.h"
#include "basis/zahl.h"
#include "editor/adressplan.h"
#include "editor/apparat.h"
#include "editor/dialog_kombination.h"
#include "editor/einmask8.h"
#include "form/oberflaeche.h"
#include "store/katalog.h"
#include "store/sitzung.h"

namespace zav {

namespace {

// Kinds that can be pasted into "Diverse" only. Not the same as those that can be placed there only.
constexpr std::array nur_in_diverse_einfuegbar{65, 70, 71, 72, 75, 76, 77, 79, 92};

// Entry of Dev_adr for slot n where it goes with device d; -1 for one that the device behind shows too.
int Eigener_ledslot(int d, int n) {
  const int slot = Apparat_slot(projekt, d, n);
  if (slot < 0 || n < tastenplaetze) return slot;
  const Apparatart* const dahinter = Apparat_art(projekt.App_typ[slot / tastenplaetze]);
  return dahinter != nullptr && dahinter->leds.hat(n % tastenplaetze) ? -1 : slot;
}

}  // namespace

bool Einmask8::Etwas_da(const std::string& ohne_anzahl, const std::string& leerer_platz) const {
  if (projekt.App_text2[apparat()].empty()) {
    Melden(ohne_anzahl);
    return false;
  }
  if (projekt.App_typ[apparat()] == apparat_leer) {
    Melden(leerer_platz);
    return false;
  }
  return true;
}

Einmask8::Apparatkopie Einmask8::Apparat_kopieren(bool kopie) const {
  const int d = apparat();
  Apparatkopie a;
  a.typ = projekt.App_typ[d];
  a.adresse = projekt.App_text[d];
  a.anzahl = projekt.App_text2[d];
  a.funk = {projekt.App_enocean_id[d],   projekt.App_enocean_schluessel[d], projekt.App_enocean_text3[d],
            projekt.App_enocean_empf[d], projekt.App_enocean_art[d],        projekt.App_enocean_wert[d],
            projekt.App_enocean_res1[d], projekt.App_enocean_res2[d]};
  for (int n = 0; n < Apparatseite::tasten_max; ++n) {
    Apparatkopie::Slot& slot = a.slots.at(static_cast<std::size_t>(n));
    if (const int s = Apparat_textslot(projekt, d, n); s >= 0) slot.text = projekt.Dev_text[s];
    if (const int s = Apparat_slot(projekt, d, n); s >= 0) slot.led = projekt.Dev_adr[s];
  }
  if (const auto lauf = Apparat_adressen(projekt, d)) a.ereignisse = Lauf_lesen(*lauf, d);
  a.kopie = kopie;
  return a;
}

void Einmask8::Platz_leeren() {
  const int d = apparat();
  if (const auto lauf = Apparat_adressen(projekt, d)) Lauf_leeren(*lauf, d);
  for (int n = 0; n < Apparatseite::tasten_max; ++n) {
    if (const int s = Apparat_textslot(projekt, d, n); s >= 0) projekt.Dev_text[s].clear();
    if (const int s = Eigener_ledslot(d, n); s >= 0) projekt.Dev_adr[s] = ausgang_keiner;
  }
  projekt.App_typ[d] = apparat_leer;
  projekt.App_text[d].clear();
  projekt.App_text2[d].clear();
  Funk_schreiben(d, {});
}

void Einmask8::Funk_schreiben(int d, const Apparatkopie::Funk& funk) {
  projekt.App_enocean_id[d] = funk.id;
  projekt.App_enocean_schluessel[d] = funk.schluessel;
  projekt.App_enocean_text3[d] = funk.text3;
  projekt.App_enocean_empf[d] = funk.empf;
  projekt.App_enocean_art[d] = funk.art;
  projekt.App_enocean_wert[d] = funk.wert;
  projekt.App_enocean_res1[d] = funk.res1;
  projekt.App_enocean_res2[d] = funk.res2;
}

void Einmask8::Ausschneiden() {
  if (!Etwas_da("Nichts auszuschneiden", "Nichts zu auszuschneiden, kein Apparat an dieser Stelle")) return;
  In_ablage_ausschneiden();
  Einfuegen_erlauben(true);
}

void Einmask8::In_ablage_ausschneiden() {
  ablage_ = Apparat_kopieren(false);
  Platz_leeren();
  sitzung.Projekt_geaendert = 1;
  // The count of the empty place stays "" until it is chosen again.
  Plaetze_zeigen();
  Seite_zeigen();
}

void Einmask8::Kopieren() {
  if (!Etwas_da("Nichts zu kopieren", "Nichts zu kopieren, kein Apparat an dieser Stelle")) return;
  ablage_ = Apparat_kopieren(true);
  Einfuegen_erlauben(true);
}

void Einmask8::Loeschen() {
  if (!Etwas_da("Nichts zu löschen", "Nichts zu löschen, kein Apparat an dieser Stelle")) return;
  if (!Fragen({.text = "Der Apparat wird endgültig gelöscht. Wollen Sie das?",
               .titel = "Löschen",
               .knoepfe = Knoepfe::Ja_Nein,
               .standard = 2})) {
    return;
  }
  In_ablage_ausschneiden();
  Einfuegen_erlauben(false);
}

void Einmask8::Einfuegen() {
  Apparatkopie& a = *ablage_;
  const int d = apparat();
  if (std::ranges::count(nur_in_diverse_einfuegbar, a.typ) > 0 &&
      projekt.Komb_layout[komb_] != layout_diverse) {
    Melden(meldung_diverse);
    return;
  }
  if (a.typ == apparat_wetterstation && Wetterstation_da()) {
    Melden(meldung_zweite_wetterstation);
    return;
  }
  if (!projekt.App_text[d].empty()) {
    Melden("Bitte löschen Sie zuerst den alten Apparat.");
    return;
  }
  const std::string alte_adresse = a.adresse;
  if (!Neue_adresse_fuer_einfuegen()) return;

  projekt.App_typ[d] = static_cast<i16>(a.typ);
  projekt.App_text[d] = a.adresse;
  projekt.App_text2[d] = a.anzahl;
  Funk_schreiben(d, a.funk);
  for (int n = 0; n < Apparatseite::tasten_max; ++n) {
    const Apparatkopie::Slot& slot = a.slots.at(static_cast<std::size_t>(n));
    if (const int s = Apparat_textslot(projekt, d, n); s >= 0 && slot.text) projekt.Dev_text[s] = *slot.text;
    if (const int s = Apparat_slot(projekt, d, n); s >= 0 && slot.led) projekt.Dev_adr[s] = *slot.led;
  }
  if (const auto lauf = Apparat_adressen(projekt, d)) {
    Lauf_schreiben(*lauf, d, a.ereignisse);
    Lauf_leds_melden(
        {Zahl_lesen(alte_adresse, 0, adressen - lauf->anzahl).value_or(lauf->von), lauf->anzahl});
  }
  sitzung.Projekt_geaendert = 1;
  Baum_zeigen();
  Platz_waehlen(platz_);
}

// A copy needs an address of its own; so does a device whose old address another one has taken meanwhile.
bool Einmask8::Neue_adresse_fuer_einfuegen() {
  Apparatkopie& a = *ablage_;
  const auto von = Zahl_lesen(a.adresse, 0, adressen - 1);
  const int anzahl = Zahl_lesen(a.anzahl, 0, adressen).value_or(0);
  if (!von) return true;
  const Adressplan plan;
  bool besetzt = false;
  for (int i = *von; i < std::min(*von + anzahl, adressen); ++i) besetzt = besetzt || plan.belegt(i);
  if (!a.kopie && !besetzt) return true;

  Melden("Der Apparat in der Zwischenablage hat Adresse i" + a.adresse +
         ". Bitte wählen Sie für die einzufügende Kopie eine neue Adresse aus.");
  Dialog_Kombination dialog(a.adresse, anzahl);
  oberflaeche().Zeigen(dialog);
  if (!dialog.gewaehlt() || *dialog.gewaehlt() == *von) {
    // What was cut is nowhere else: it stays in the clipboard.
    if (a.kopie) Einfuegen_erlauben(false);
    return false;
  }
  a.adresse = std::to_string(*dialog.gewaehlt());
  return true;
}

void Einmask8::Einfuegen_erlauben(bool erlaubt) {
  einfuegbar_ = erlaubt;
  Befehle_freigeben();
}

}  // namespace zav
