// The transfer: from the handshake to the question for a restart.
#include <array>

#include "basis/melder.h"
#include "basis/text.h"
#include "link/leitung.h"
#include "link/protokoll.h"
#include "store/sitzung.h"
#include "transfer/empfaenger.h"
#include "transfer/uebertragung.h"

namespace zav {

namespace {

constexpr i16 block_zeit = 15;  // s, for every exchange that writes
constexpr int status_laenge = 6;
constexpr int version_laenge = 13;
constexpr int stempel_laenge = 19;
constexpr i32 stempel_anfang = 0x800;
constexpr i32 stempel_ende = 0x807;

struct Vertraeglichkeit {
  std::string_view Datei_version;
  std::string_view anfang;
};
constexpr std::array<Vertraeglichkeit, 3> vertraeglichkeiten{{
    {"910", "REV 09.0"},
    {"900", "REV 09.0"},
    {"800", "REV 08.0"},
}};

constexpr std::string_view zeilenende = "\r\n";

}  // namespace

bool Version_passt(std::string_view Datei_version, std::string_view antwort) {
  for (const auto& v : vertraeglichkeiten) {
    if (v.Datei_version == Datei_version) return antwort.starts_with(v.anfang);
  }
  return false;
}

// ---- steps ------------------------------------------------------------------------------------------------

// The port is closed and opened anew between the steps of the handshake, so that what a step left behind is
// gone.
bool Uebertragung::Neu_oeffnen() {
  Port_schliessen();
  Port_oeffnen();
  if (leitung.Port_fehler == 0) return true;
  leitung.Empfang_text = Port_zu;
  return false;
}

// Sends Sende_text and waits; true when anything came in time.
bool Uebertragung::Austausch(i16 zeit, int antwortlaenge) {
  const i16 bisher = leitung.Fehler_korrigiert;
  Meldung_senden(leitung.Sende_text, zeit, true, antwortlaenge);
  if (leitung.Fehler_korrigiert != bisher) beobachter_.Korrigiert_zeigen(leitung.Fehler_korrigiert);
  return leitung.Empfang_status == 0;
}

bool Uebertragung::Direkt_senden(std::string_view befehl) {
  leitung.Sende_text = befehl;
  leitung.Sende_text += Sende_daten;
  return Austausch(block_zeit, status_laenge) && Antwort_ist_gut();
}

// Writes Sende_daten through a window that begins at Daten_fenster_von.
bool Uebertragung::Block_senden() {
  Daten_fenster_bis = Daten_fenster_von + static_cast<i32>(Sende_daten.size() / 2) - 1;
  Fenster_setzen(Daten_fenster_von, Daten_fenster_bis);
  return Austausch(block_zeit, status_laenge) && Antwort_ist_gut() && Direkt_senden("W");
}

bool Uebertragung::Version_holen() {
  leitung.Sende_text = "V";
  if (!Austausch(leitung.Antwort_zeit, version_laenge)) {
    Transfer_status = Transferstand::keine_antwort;
    return false;
  }
  sitzung.Master_version = Links(leitung.Empfang_text, 10);
  beobachter_.Version_zeigen(sitzung.Master_version);
  return true;
}

bool Uebertragung::Version_vertraeglich(const std::string& meldung) {
  const bool passt = Version_passt(projekt.Datei_version, leitung.Empfang_text);
  sitzung.Master_vergleich = passt ? 0 : 1;
  if (passt) return true;
  Melden(projekt.Datei_version.empty() ? "Bitte die Konfiguration vorher speichern" : meldung, "Fehler",
         Symbol::Stopp);
  Transfer_status = Transferstand::falsche_version;
  return false;
}

// ---- the rows ---------------------------------------------------------------------------------------------

// Walks the plan with an open line.
class Uebertragung::Sender : public Plangaenger {
 public:
  explicit Sender(Uebertragung& u) : u_(u) {}

  bool gescheitert = false;

  void Abschnitt_beginnt(const Abschnitt& a) override {
    u_.beobachter_.Protokoll(a.protokoll);
    if (!a.protokoll.empty() && !a.zaehlend) u_.beobachter_.Protokoll(zeilenende);
  }

  bool Zeile(const Abschnitt& a, int zeile, const Block& b) override {
    u_.beobachter_.Zeile_zeigen(a, zeile);
    u_.Sende_daten.clear();
    Hex_anfuegen(b.bytes(), u_.Sende_daten);
    u_.Daten_fenster_von = a.anfang + zeile * a.schritt;
    if (!(a.gefenstert() ? u_.Block_senden() : u_.Direkt_senden(a.befehl))) {
      gescheitert = true;
      return false;
    }
    if (a.erledigt != nullptr) a.erledigt(projekt, zeile);
    if (a.stempel) {
      u_.Nach_initialisierung = 0;
      sitzung.Projekt_gesendet = 1;
    }
    return true;
  }

  void Zeile_vorbei(const Abschnitt& a, int zeile) override {
    const auto stand = Fortschritt_bei(a, zeile);
    if (!stand || stand == gezeigt_) return;
    gezeigt_ = stand;
    u_.beobachter_.Fortschritt_zeigen(*stand);
  }

  void Abschnitt_endet(const Abschnitt& a, int gesendet) override {
    if (!a.zaehlend) return;
    u_.beobachter_.Protokoll(std::to_string(gesendet));
    u_.beobachter_.Protokoll(zeilenende);
  }

 private:
  Uebertragung& u_;
  std::optional<Fortschritt> gezeigt_;
};

// ---- the whole --------------------------------------------------------------------------------------------

Sendeergebnis Uebertragung::Gescheitert() {
  beobachter_.Fortschritt_zeigen({});
  melder().Zeiger_setzen(Zeiger::normal);
  Port_schliessen();
  beobachter_.Befehle_freigeben(true);
  melder().Piep();
  Uebertragungsfehler_melden(leitung.Empfang_text);
  return Sendeergebnis::gescheitert;
}

// From opening the port to the stamp; leaves the port open unless an exchange failed.
Sendeergebnis Uebertragung::Sitzung_fuehren() {
  leitung.Abbruch_flag = 0;
  leitung.Fehler_korrigiert = 0;
  beobachter_.Korrigiert_zeigen(0);

  if (!Neu_oeffnen()) return Gescheitert();
  Empfaenger_ruecksetzen();
  leitung.Sende_text = "i";
  if (!Austausch(leitung.Antwort_zeit, status_laenge) || !Antwort_ist_gut()) return Gescheitert();

  if (!Neu_oeffnen()) return Gescheitert();
  if (!Version_holen()) return Sendeergebnis::keine_antwort;
  if (!Version_vertraeglich("Version ZAVmaster ist nicht kompatibel zur PC-Software ZAVlink!")) {
    return Sendeergebnis::falsche_version;
  }

  if (!Neu_oeffnen()) return Gescheitert();
  Fenster_setzen(stempel_anfang, stempel_ende);
  if (!Austausch(block_zeit, status_laenge) || !Antwort_ist_gut()) return Gescheitert();
  leitung.Sende_text = "R";
  const bool gelesen = Austausch(leitung.Antwort_zeit, stempel_laenge);
  const std::string kennung = leitung.Empfang_text;
  beobachter_.Protokoll("Code holen: " + kennung + std::string(zeilenende));
  if (!gelesen || !Neu_oeffnen()) return Gescheitert();

  if (Nach_initialisierung == 0) {
    if (Links(kennung, 16) != projekt.Projekt_kennung) {
      Melden("PC und ZAVmaster sind nicht synchronisiert. Bitte zuerst Initialisieren.");
      return Sendeergebnis::nicht_synchron;
    }
    sitzung.Master_neu_pruefen = 0;
  }

  const Uhr_tafel Uhr_work = Uhr_tafel_heute(projekt);
  Sender sender(*this);
  if (!Plan_gehen({projekt, einstellungen, Uhr_work}, {.nur_geaenderte = true, .sperren = Check1}, sender)) {
    return sender.gescheitert ? Gescheitert() : Sendeergebnis::zu_breit;
  }
  return Sendeergebnis::gesendet;
}

Sendeergebnis Uebertragung::Senden_starten() {
  beobachter_.Protokoll_leeren();
  beobachter_.Fortschritt_zeigen({});
  beobachter_.Befehle_freigeben(false);
  if (projekt.Projekt_name == "Namenlos") {
    melder().Piep();
    Melden("Sie sollten das aktuelle Projekt vorher speichern.", "Information", Symbol::Information);
    beobachter_.Befehle_freigeben(true);
    return Sendeergebnis::nicht_gespeichert;
  }

  melder().Zeiger_setzen(Zeiger::warten);
  const Sendeergebnis ergebnis = Sitzung_fuehren();
  if (ergebnis == Sendeergebnis::gescheitert) return ergebnis;

  melder().Zeiger_setzen(Zeiger::normal);
  Port_schliessen();
  beobachter_.Befehle_freigeben(true);
  if (ergebnis != Sendeergebnis::gesendet) return ergebnis;
  if (Fragen({.text = "Im ZAVmaster einen Neustart durchführen? 'Ja', wenn Schaltzeiten und Timer "
                      "aktualisiert werden sollen. 'Nein', wenn nur Ausgangsverknüpfungen geändert wurden.",
              .titel = "Neustart ZAVmaster?",
              .knoepfe = Knoepfe::Ja_Nein_Abbrechen,
              .symbol = Symbol::Frage})) {
    Neustart_ausfuehren();
  }
  return ergebnis;
}

}  // namespace zav
