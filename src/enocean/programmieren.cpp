#include "enocean/programmieren.h"

#include <utility>

#include "basis/melder.h"
#include "basis/text.h"
#include "basis/zahl.h"
#include "enocean/sender.h"
#include "link/leitung.h"
#include "link/protokoll.h"
#include "store/katalog.h"
#include "store/sitzung.h"

namespace zav {

namespace {

constexpr std::size_t tabellenziffern = 512;
constexpr std::size_t seitenziffern = tabellenziffern / empfaengerseiten;
constexpr std::size_t telegrammziffern = 8;  // of the table, in one telegram
constexpr std::size_t telegramme_je_seite = seitenziffern / telegrammziffern + 2;
constexpr std::size_t pruefungen_je_seite = 4;
constexpr int statuslaenge = 6;
constexpr int telegrammlaenge = 31;  // reply to "x"
constexpr std::size_t stelle_pruefsumme = 11;

// Offset and length of each page, as a telegram names it.
constexpr std::array<const char*, empfaengerseiten> seitenworte{"000040000000", "004040000000",
                                                                "008040000000", "00C040000000"};
constexpr const char* ohne_daten = "000000000000";

std::string Pruefsumme_der_seite(std::string_view ziffern) {
  std::uint32_t summe = 0;
  for (std::size_t i = 0; i < ziffern.size(); i += 2) {
    std::uint32_t byte = 0;
    Hex_wert(ziffern.substr(i, 2), byte);
    summe += byte;
  }
  return Hex4(summe & 0xFFFF);
}

// Why a device has no place in a table, "" when it has.
std::string Mangel(const Projekt& p, int d) {
  const int k = d / plaetze;
  const std::string wer =
      "Der Funksender " + p.App_enocean_id[d] + " (" + p.Komb_text[k] + " - " + p.Komb_text2[k] + ") ";
  if (!Ist_sender_id(p.App_enocean_id[d]))
    return wer + "hat keine gültige ID. Bitte die EnOcean-Definition prüfen.";
  if (!Apparat_adressen(p, d)) return wer + "hat keine Adresse. Bitte zuerst eine Adresse definieren.";
  return {};
}

std::string Eintrag(const Projekt& p, int d) {
  return p.App_enocean_id[d] + Hex2(Apparat_adressen(p, d)->von) + Hex2(p.App_enocean_wert[d] & 0xFF) +
         "0000";
}

// The exchanges of a run. Each returns false when the line failed; the boxes of the link have been shown
// then.
class Telegramme {
 public:
  explicit Telegramme(int r) : adresse_(Empfaenger_adresse(r)) {}

  bool senden(const char* laenge, char buchstabe, const std::string& daten) const {
    Can_senden(adresse_, laenge, Hex2('A') + Hex2(buchstabe) + daten);
    return leitung.Empfang_status == 0;
  }
  // One message to the master itself.
  static bool fragen(const char* befehl, int antwortlaenge) {
    Port_oeffnen();
    if (leitung.Port_fehler != 0) {
      Melden("SIO: Fehler " + std::to_string(leitung.Port_fehler) + " bei Open Port");
      return false;
    }
    leitung.Sende_text = befehl;
    Meldung_senden(leitung.Sende_text, leitung.Antwort_zeit, true, antwortlaenge);
    Port_schliessen();
    return leitung.Empfang_status == 0;
  }

 private:
  std::string adresse_;
};

// One run over its tables, with the count of what has been done.
class Programmierlauf {
 public:
  Programmierlauf(const std::vector<Empfaengertabelle>& tabellen, Enocean_anzeige& anzeige)
      : tabellen_(tabellen), anzeige_(anzeige) {}

  bool schreiben() {
    for (const Empfaengertabelle& t : tabellen_) {
      // From here on the receiver holds neither the old nor the new table.
      merken(t.nummer, 1);
      for (std::size_t seite = 0; seite < empfaengerseiten; ++seite) {
        if (!seite_schreiben(t, seite)) return false;
      }
    }
    return true;
  }
  bool initialisieren() {
    for (const Empfaengertabelle& t : tabellen_) {
      anzeige_.Meldung_zeigen(nummer(t) + " initialisieren...");
      if (!Telegramme(t.nummer).senden("02", 'I', ohne_daten)) return false;
    }
    return true;
  }
  bool pruefen(bool& alle_richtig) {
    for (const Empfaengertabelle& t : tabellen_) {
      anzeige_.Meldung_zeigen("Daten von " + nummer(t) + "  überprüfen...");
      for (std::size_t seite = 0; seite < empfaengerseiten; ++seite) {
        std::string summe;
        if (!pruefsumme_holen(t.nummer, seite, summe)) return false;
        if (summe == t.pruefsummen[seite]) continue;
        alle_richtig = false;
        Melden("Prüfsumme falsch in EnOcean-Empfänger " + std::to_string(t.nummer) + "!");
      }
      merken(t.nummer, 0);
    }
    return true;
  }

 private:
  static std::string nummer(const Empfaengertabelle& t) {
    return "Empfänger-Nr. " + std::to_string(t.nummer);
  }
  static void merken(int r, u8 geaendert) {
    if (std::exchange(projekt.Enocean_empf_geaendert[r], geaendert) != geaendert)
      sitzung.Projekt_geaendert = 1;
  }
  void schritt() {
    ++schritte_;
    const std::size_t alle =
        tabellen_.size() * empfaengerseiten * (telegramme_je_seite + pruefungen_je_seite);
    anzeige_.Fortschritt_zeigen(100.0 * static_cast<double>(schritte_) / static_cast<double>(alle));
    melder().DoEvents();
  }
  bool gesendet(bool gut) {
    if (gut) schritt();
    return gut;
  }
  bool seite_schreiben(const Empfaengertabelle& t, std::size_t seite) {
    const Telegramme telegramme(t.nummer);
    if (!gesendet(telegramme.senden("02", 'C', ohne_daten))) return false;
    const std::size_t ende = (seite + 1) * seitenziffern;
    for (std::size_t k = seite * seitenziffern; k < ende; k += telegrammziffern) {
      if (!gesendet(telegramme.senden("06", 'P', t.text.substr(k, telegrammziffern) + "0000"))) return false;
      anzeige_.Meldung_zeigen(nummer(t) + " Meldung " + std::to_string(k + 1) + " von 505 in Arbeit...");
    }
    return gesendet(telegramme.senden("05", 'T', seitenworte[seite]));
  }
  bool pruefsumme_holen(int r, std::size_t seite, std::string& summe) {
    const Telegramme telegramme(r);
    // The master fetches the receiver's answer; it comes with the telegram that follows.
    const bool gut = gesendet(telegramme.senden("05", 't', seitenworte[seite])) &&
                     gesendet(Telegramme::fragen("&", statuslaenge) && Antwort_ist_gut()) &&
                     gesendet(telegramme.senden("02", 'R', ohne_daten)) &&
                     gesendet(Telegramme::fragen("x", telegrammlaenge));
    if (gut) summe = Mitte(leitung.Empfang_text, stelle_pruefsumme, 4);
    return gut;
  }

  const std::vector<Empfaengertabelle>& tabellen_;
  Enocean_anzeige& anzeige_;
  std::size_t schritte_ = 0;
};

// Number of the failure: that of the status code, or of the port that did not open.
std::string Fehlernummer() {
  const std::string code = Links(leitung.Empfang_text, 3);
  return leitung.Port_fehler == 0 && Zeichen(code, 1) == "F" ? Mitte(code, 2, 2)
                                                             : std::to_string(leitung.Port_fehler);
}

}  // namespace

bool Enocean_zu_programmieren(const Projekt& p, int r, bool alle) {
  return p.Enocean_empf_da[r] == 1 && (alle || p.Enocean_empf_geaendert[r] == 1);
}

Empfaengertabellen Enocean_tabellen(const Projekt& p, bool alle) {
  Empfaengertabellen ergebnis;
  std::array<int, empfaenger> stelle;  // of the receiver's table, -1 = none is asked for
  stelle.fill(-1);
  for (int r = 0; r < empfaenger; ++r) {
    if (!Enocean_zu_programmieren(p, r, alle)) continue;
    stelle.at(static_cast<std::size_t>(r)) = static_cast<int>(ergebnis.tabellen.size());
    ergebnis.tabellen.push_back({.nummer = r});
    ergebnis.tabellen.back().text.reserve(tabellenziffern);
  }
  for (int d = 0; d < apparate; ++d) {
    const int r = p.App_enocean_empf[d];
    if (r < 0 || r >= empfaenger || stelle.at(static_cast<std::size_t>(r)) < 0) continue;
    Empfaengertabelle& t =
        ergebnis.tabellen.at(static_cast<std::size_t>(stelle.at(static_cast<std::size_t>(r))));
    ergebnis.mangel = t.text.size() < tabellenziffern
                          ? Mangel(p, d)
                          : "Dem Empfänger " + std::to_string(r) + " sind mehr als " +
                                std::to_string(sender_je_empfaenger) + " Sender-IDs zugewiesen.";
    if (!ergebnis.mangel.empty()) return ergebnis;
    t.text += Eintrag(p, d);
  }
  for (Empfaengertabelle& t : ergebnis.tabellen) {
    t.text.resize(tabellenziffern, '0');
    for (std::size_t seite = 0; seite < empfaengerseiten; ++seite) {
      t.pruefsummen[seite] =
          Pruefsumme_der_seite(std::string_view(t.text).substr(seite * seitenziffern, seitenziffern));
    }
  }
  return ergebnis;
}

Enocean_ergebnis Enocean_programmieren(bool alle, Enocean_anzeige& anzeige) {
  const Empfaengertabellen t = Enocean_tabellen(projekt, alle);
  if (!t.mangel.empty()) {
    Melden(t.mangel, "Fehler", Symbol::Stopp);
    return Enocean_ergebnis::gescheitert;
  }
  leitung.Abbruch_flag = 0;
  Programmierlauf lauf(t.tabellen, anzeige);
  bool alle_richtig = true;
  bool gut = false;
  {
    const Wartezeiger zeiger;
    gut = lauf.schreiben() && lauf.initialisieren() && lauf.pruefen(alle_richtig);
  }
  if (!gut) {
    Melden("Fehler " + Fehlernummer() + " bei der Kommunikation.", "", Symbol::Stopp);
    return Enocean_ergebnis::gescheitert;
  }
  Melden("Alle Empfänger sind jetzt aktualisiert.");
  return alle_richtig ? Enocean_ergebnis::aktualisiert : Enocean_ergebnis::pruefsumme_falsch;
}

}  // namespace zav
