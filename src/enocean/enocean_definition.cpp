#include "enocean/enocean_definition.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "basis/liste.h"
#include "basis/melder.h"
#include "basis/text.h"
#include "enocean/sender.h"
#include "store/sitzung.h"

namespace zav {

namespace {

constexpr const char* nichts = "---";

// Writes a value and notes a change for the session.
template <class T>
void Schreiben(T& ziel, T wert) {
  if (std::exchange(ziel, wert) != wert) sitzung.Projekt_geaendert = 1;
}

bool Warnung_bestaetigt(const std::string& text) {
  return Fragen(
      {.text = text, .titel = "Warnung", .knoepfe = Knoepfe::Ja_Nein_Abbrechen, .symbol = Symbol::Warnung});
}

}  // namespace

Enocean_Definition::Enocean_Definition(int d) : Formular("Enocean_Definition", "EnOcean-Definition"), d_(d) {
  Verdrahten();
  Laden();
}

void Enocean_Definition::Verdrahten() {
  anmelden("ID_Text", ID_Text);
  anmelden("Key_Text", Key_Text);
  anmelden("Label1", Label1);
  anmelden("Option1", Option1);
  anmelden("Text1", Text1);
  anmelden("Frame1", Frame1);
  anmelden("Label2", Label2);
  anmelden("Check1", Check1);
  anmelden("Text2", Text2);
  anmelden("Label3", Label3);
  anmelden("ProgressBar", ProgressBar);
  anmelden("Label4", Label4);
  anmelden("Label5", Label5);
  anmelden("Command5", Command5);
  anmelden("Check2", Check2);
  anmelden("Check3", Check3);
  anmelden("Command1", Command1);
  anmelden("Command2", Command2);

  ID_Text.hinweis = "8 Zeichen von 0-9 und A-F";
  ID_Text.wenn_geaendert = [this] { ID_Text.setzen(Gross(ID_Text.text())); };
  Option1.wenn_geaendert = [this] { Text1.setzen(Enocean_sender_liste(Option1.position())); };
  Text1.mehrzeilig = true;
  Text1.nur_lesen = true;

  constexpr std::array<const char*, 6> spalten{
      "Nr.",   "Standort des Empfängers", "ID mit Click übernehmen", "Optimal - Schwach",
      "Pegel", "Version und Daten"};
  for (std::size_t s = 0; s < spalten.size(); ++s) Label2[s].titel = spalten[s];
  for (std::size_t r = 0; r < Check1.size(); ++r) {
    Check1[r].titel = std::to_string(r);
    Check1[r].hinweis = "Der Empfänger ist eingebaut";
    Text2[r].hinweis = "Standort des Empfängers";
    Label3[r].hinweis = "ID mit Click übernehmen";
    Label3[r].wenn_angeklickt = [this, r] { Id_uebernehmen(r); };
    Text2[r].breite = 20;
    ProgressBar[r].zeigt = Balken::Zeigt::messwert;
    Label4[r].zahl = true;
  }
  Gehoertes_leeren();
  Command5.wenn_gedrueckt = [this] { Nachsehen(); };
  Check3.wenn_geaendert = [this] { Details_anzeigen(); };
  Command1.wenn_gedrueckt = [this] { Uebernehmen(); };
  Command2.wenn_gedrueckt = [this] { schliessen(); };
  Command1.standard = true;
  Command2.abbruch = true;
}

void Enocean_Definition::Laden() {
  const Beschaeftigt still(*this);
  const Projekt& p = projekt;
  ID_Text.setzen(p.App_enocean_id[d_]);
  Key_Text.setzen(p.App_enocean_schluessel[d_]);
  for (const i16 r : p.App_enocean_empf.alle()) {
    if (r >= 0 && r < empfaenger) ++anzahl_.at(static_cast<std::size_t>(r));
  }
  for (std::size_t r = 0; r < Check1.size(); ++r) {
    Check1[r].setzen(p.Enocean_empf_da[r] == 1);
    Text2[r].setzen(p.Enocean_empf_ort[r]);
  }
  Check3.setzen(sitzung.Enocean_details != 0);
  Details_anzeigen();
  Empfaengerleiste_anzeigen();
  Einstellen(Option1, p.App_enocean_empf[d_]);
  if (Option1.position() >= 0) Text1.setzen(Enocean_sender_liste(Option1.position()));
}

void Enocean_Definition::Empfaengerleiste_anzeigen() {
  Option1.fuellen(Texte(empfaenger, [](int r) { return std::to_string(r); }));
  for (int r = 0; r < empfaenger; ++r) {
    const int n = anzahl_.at(static_cast<std::size_t>(r));
    const str& ort = projekt.Enocean_empf_ort[r];
    Option1.hinweisen(r, (ort.empty() ? "" : ort + ": ") + std::to_string(n) + " von " +
                             std::to_string(sender_je_empfaenger) + " Sendern");
    Option1.faerben(r, n > 0 ? Farbe::belegt : Farbe::normal);
  }
}

void Enocean_Definition::Details_anzeigen() {
  sitzung.Enocean_details = Check3.an() ? 1 : 0;
  Label2.back().sichtbar = Check3.an();
  for (Schild& s : Label5) s.sichtbar = Check3.an();
}

// ---- taking over

std::string Enocean_Definition::Eingaben_pruefen() const {
  const std::string& id = ID_Text.text();
  if (id.empty()) return "Es muss eine ID definiert werden";
  if (Option1.position() < 0) return "Es muss ein Empfänger definiert werden";
  if (Zeichen_anzahl(id) != sender_id_laenge) return "Die ID muss 8 Zeichen lang sein";
  if (!Ist_sender_id(id)) return "Die ID ist nicht korrekt (falsches Zahlenformat)";
  return {};
}

bool Enocean_Definition::Neue_id_erlaubt() {
  const str& alt = projekt.App_enocean_id[d_];
  return alt.empty() || alt == ID_Text.text() ||
         Warnung_bestaetigt(
             "Wenn Sie diese ID ändern, müssen Sie auch den entsprechenden Sender ersetzen. Soll diese ID "
             "geändert werden?");
}

// The same ID on another receiver goes there no more. The own place is asked about too; what it holds is
// written when all is good.
bool Enocean_Definition::Verschieben_erlaubt() {
  const int neu = Option1.position();
  for (int d = 0; d < apparate; ++d) {
    const int alt = projekt.App_enocean_empf[d];
    if (alt == neu || alt == kein_empfaenger || projekt.App_enocean_id[d] != ID_Text.text()) continue;
    if (!Warnung_bestaetigt("Diese ID existiert zur Zeit im Empfänger " + std::to_string(alt) +
                            ". Soll diese auf den neuen Empfänger " + std::to_string(neu) +
                            " verschoben werden?")) {
      return false;
    }
    if (d == d_) continue;
    if (alt >= 0 && alt < empfaenger) --anzahl_.at(static_cast<std::size_t>(alt));
    Schreiben(projekt.App_enocean_id[d], str());
    Schreiben(projekt.App_enocean_empf[d], kein_empfaenger);
  }
  return true;
}

void Enocean_Definition::Uebernehmen() {
  if (const std::string fehler = Eingaben_pruefen(); !fehler.empty()) {
    Melden(fehler);
    fokussieren(Option1.position() < 0 && !ID_Text.text().empty() ? static_cast<Steuerelement&>(Option1)
                                                                  : ID_Text);
    return;
  }
  if (!Neue_id_erlaubt()) return;
  const int r = Option1.position();
  if (r != projekt.App_enocean_empf[d_]) {
    if (!Verschieben_erlaubt()) return;
    if (anzahl_.at(static_cast<std::size_t>(r)) == sender_je_empfaenger) {
      Melden("Es können maximal 32 Sender-IDs zu einem Empfänger zugewiesen werden");
      return;
    }
  }
  // The other fields of the sender stand there as they were read.
  Schreiben(projekt.App_enocean_id[d_], ID_Text.text());
  Schreiben(projekt.App_enocean_schluessel[d_], Key_Text.text());
  Schreiben(projekt.App_enocean_empf[d_], static_cast<i16>(r));
  for (std::size_t i = 0; i < Check1.size(); ++i) {
    Schreiben(projekt.Enocean_empf_da[i], static_cast<u8>(Check1[i].an() ? 1 : 0));
    Schreiben(projekt.Enocean_empf_ort[i], Text2[i].text());
  }
  Text1.setzen(Enocean_sender_liste(r));
  schliessen();
}

// ---- what the receivers have heard

void Enocean_Definition::Gehoertes_leeren() {
  for (std::size_t r = 0; r < Label3.size(); ++r) {
    Label3[r].titel = Label4[r].titel = Label5[r].titel = nichts;
    Label3[r].sperren(true, "Von diesem Empfänger ist noch keine ID angezeigt");
    ProgressBar[r].wert = 0;
  }
}

void Enocean_Definition::Id_uebernehmen(std::size_t r) {
  if (!Ist_sender_id(*Label3[r].titel)) return;
  ID_Text.setzen(Label3[r].titel);
  Option1.setzen(static_cast<int>(r));
}

void Enocean_Definition::schliessen_wuenschen() {
  if (Command2.frei) Command2.druecken();
}

Anordnung Enocean_Definition::anordnung() {
  Anordnung raster = Raster(6, Alle(Label2), Zeilenweise(Check1, Text2, Label3, ProgressBar, Label4, Label5));
  return Spalte(
      Zeile(Spalte(ID_Text, Key_Text, Label1, Option1, Text1),
            Gruppe(Frame1, std::move(raster), Zeile(Command5, Feder()), Zeile(Check2, Check3, Feder()))),
      Knopfzeile(Command1, Command2));
}

}  // namespace zav
