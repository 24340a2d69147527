#include "app/deskriptor.h"

#include <algorithm>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "app/xml_text.h"
#include "basis/melder.h"
#include "basis/text.h"
#include "basis/zahl.h"
#include "form/oberflaeche.h"
#include "platform/datei.h"
#include "platform/einstellungen.h"
#include "store/funktionen.h"
#include "store/katalog.h"
#include "store/projektdatei.h"

namespace zav {

namespace {

using Satz = std::span<const str>;  // app_felder texts of one event

enum class Bereich { normal, global, szene };

bool Gehoert_zu(Bereich b, Satz s) {
  const str& bereich = s[App_bereich];
  switch (b) {
    case Bereich::normal: return bereich == "0" || bereich == "2";
    case Bereich::global: return (bereich == "1" || bereich == "2") && s[App_als_szene] == "0";
    case Bereich::szene: return (bereich == "1" || bereich == "2") && s[App_als_szene] == "1";
  }
  return false;
}

// The attribute of the devices that show the button; nothing for a key that is not exported.
std::optional<std::string_view> Geraet(Satz s) {
  if (s[App_geraet] == "1") return " fordevice=\"phone\"";
  if (s[App_geraet] == "2") return " fordevice=\"tablet\"";
  if (s[App_geraet] == "3") return "";
  return std::nullopt;
}

// Output number as the app writes it: "O3-5", "D1-2", "-" for none.
std::string Ausgang_text(std::string_view nummer) {
  const auto n = Zahl_lesen(nummer, 0, ausgang_keiner - 1);
  if (!n) return "-";
  return Ziel_name(*n < erster_dimmer ? Ziel{Ziel::Art::Relais, *n}
                                      : Ziel{Ziel::Art::Dimmer, *n - erster_dimmer});
}

std::string Gefasst(std::string_view text) { return "\"" + Xml_text(text) + "\""; }

// The document as it grows: lines, each at its level.
class Dokument {
 public:
  void zeile(int ebene, std::string_view text) {
    bytes_.append(Einrueckung(ebene)).append(text).append("\r\n");
  }
  void feld(int ebene, std::string_view name, std::string_view text, std::string_view dahinter = "") {
    const std::string marke(name);
    zeile(ebene, "<" + marke + ">" + Xml_text(text) + "</" + marke + ">" + std::string(dahinter));
  }
  void kommentar(std::string_view text) {
    zeile(0, "<!-- " + std::string(text) + " +++++++++++++++++++++++++++++ -->");
  }
  void ende(int ebene) { zeile(ebene, "</node>"); }
  void byte_order_mark() { bytes_ += "\xEF\xBB\xBF"; }
  std::string nehmen() { return std::move(bytes_); }

 private:
  std::string bytes_;
};

// A key that has a text: where it stands and what the app knows of it.
struct Taste_im_haus {
  int kombination;
  int ereignis;
  const str* text;
};

class Verfasser {
 public:
  explicit Verfasser(const Projekt& p) : p_(p), kombinationen_(Sortiert(p)), tasten_(Tasten()) {}

  std::string schreiben() {
    dok_.byte_order_mark();
    dok_.zeile(0, "<?xml version=\"1.0\" encoding=\"UTF-8\"?>");
    dok_.zeile(0, "<zavappdescriptor version=\"1.0\">");
    dok_.zeile(0, "<uisector>");
    dok_.feld(0, "title", p_.App_allgemein[0]);
    dok_.kommentar("Globale Tasten ab hier");
    globale_tasten();
    dok_.kommentar("Globale Tasten bis hier");
    dok_.kommentar("Globale Szenen ab hier");
    globale_szenen();
    dok_.kommentar("Globale Szenen bis hier");
    dok_.kommentar("Normale Tasten ab hier");
    normale_tasten();
    dok_.kommentar("Normale Tasten bis hier");
    dok_.zeile(0, "</uisector>");
    dok_.kommentar("Kameras ab hier");
    dok_.zeile(0, "<camsector>");
    for (int i = 0; i < kameras; ++i) kamera(i);
    dok_.zeile(0, "</camsector>");
    dok_.zeile(0, "</zavappdescriptor>");
    return dok_.nehmen();
  }

  App_umfang zaehlen() const {
    const auto anzahl = [this](Bereich b) {
      return static_cast<int>(std::ranges::count_if(
          tasten_, [&](const Taste_im_haus& t) { return Gehoert_zu(b, satz(t.ereignis)); }));
    };
    return {anzahl(Bereich::normal), anzahl(Bereich::global), anzahl(Bereich::szene),
            static_cast<int>(std::ranges::count(p_.Kamera_aktiv.alle(), "1"))};
  }

 private:
  // Upper and lower case are one for A to Z and the six letters with umlauts and accents.
  static std::string Sortierschluessel(std::string_view text) {
    std::u32string codes = Codes(text);
    for (char32_t& c : codes) {
      const bool gross =
          (c >= U'A' && c <= U'Z') || std::u32string_view(U"ÄÖÜÉÈÀ").find(c) != std::u32string_view::npos;
      if (gross) c += 0x20;
    }
    return Aus_codes(codes);
  }
  // Kombinationen in use by storey; of equal storeys the one with the lower number first.
  static std::vector<int> Sortiert(const Projekt& p) {
    struct Eintrag {
      std::string schluessel;
      int kombination;
    };
    std::vector<Eintrag> liste;
    for (int k = 0; k < kombinationen; ++k) {
      if (!p.Komb_text[k].empty()) liste.push_back({Sortierschluessel(p.Komb_text[k]), k});
    }
    std::ranges::stable_sort(liste, {}, &Eintrag::schluessel);
    std::vector<int> sortiert;
    sortiert.reserve(liste.size());
    for (const Eintrag& e : liste) sortiert.push_back(e.kombination);
    return sortiert;
  }
  // Every key that is exported anywhere, in the order of the Kombinationen.
  std::vector<Taste_im_haus> Tasten() const {
    std::vector<Taste_im_haus> tasten;
    for (const int k : kombinationen_) {
      for (int d = plaetze * k; d < plaetze * (k + 1); ++d) {
        const auto lauf = Apparat_adressen(p_, d);
        if (!lauf) continue;
        for (int n = 0; n < lauf->ereignisse(); ++n) {
          const int slot = Apparat_textslot(p_, d, n);
          const int ereignis = lauf->erstes_ereignis() + n;
          if (slot < 0 || p_.Dev_text[slot].empty() || !Geraet(satz(ereignis))) continue;
          tasten.push_back({k, ereignis, &p_.Dev_text[slot]});
        }
      }
    }
    return tasten;
  }
  Satz satz(int ereignis) const { return p_.App_eigenschaften.zeile(ereignis); }

  void globale_tasten() {
    dok_.zeile(1, "<node type=\"section\" domain=\"global\">");
    dok_.zeile(2, "<title>Tasten</title>");
    dok_.zeile(2, "<subtitle>Globale Tasten</subtitle>");
    globale_sammlung(Bereich::global, "<title>Globale Tasten</title>");
  }
  void globale_szenen() {
    dok_.zeile(1, "<node type=\"section\" domain=\"global\" class=\"scene\">");
    dok_.zeile(2, "<title>Globale Szenen</title>");
    globale_sammlung(Bereich::szene, "<title>Globale Szenen</title>");
  }
  void globale_sammlung(Bereich bereich, std::string_view titel) {
    dok_.zeile(2, "<node type=\"collection\" domain=\"global\">");
    dok_.zeile(3, titel);
    for (const Taste_im_haus& t : tasten_) {
      if (Gehoert_zu(bereich, satz(t.ereignis))) knopf(3, t.ereignis, *t.text, " domain=\"global\"");
    }
    dok_.ende(2);
    dok_.ende(1);
  }

  void normale_tasten() {
    dok_.zeile(1, "<node type=\"collection\">");
    const str* standort = nullptr;
    auto taste = tasten_.begin();
    for (const int k : kombinationen_) {
      if (standort == nullptr || *standort != p_.Komb_text[k]) {
        if (standort != nullptr) abschnitt_ende(2);
        standort = &p_.Komb_text[k];
        abschnitt(2, *standort);
      }
      abschnitt(4, p_.Komb_text2[k]);
      for (; taste != tasten_.end() && taste->kombination == k; ++taste) {
        if (Gehoert_zu(Bereich::normal, satz(taste->ereignis))) knopf(6, taste->ereignis, *taste->text, "");
      }
      abschnitt_ende(4);
    }
    if (standort != nullptr) abschnitt_ende(2);
    dok_.ende(1);
  }
  // A storey or a room, and the collection in it.
  void abschnitt(int ebene, std::string_view text) {
    dok_.zeile(ebene, "<node type=\"section\">");
    dok_.feld(ebene + 1, "title", App_titel_teil(text));
    dok_.feld(ebene + 1, "subtitle", App_untertitel_teil(text));
    dok_.zeile(ebene + 1, "<node type=\"collection\">");
  }
  void abschnitt_ende(int ebene) {
    dok_.ende(ebene + 1);
    dok_.ende(ebene);
  }

  // Nothing for an event that is not exported.
  void knopf(int ebene, int ereignis, std::string_view text, std::string_view bereich) {
    const Satz s = satz(ereignis);
    const auto geraet = Geraet(s);
    if (!geraet) return;
    const std::string_view klasse = s[App_als_szene] == "1" ? "scene" : "light";
    dok_.zeile(ebene, "<node type=\"button\"" + std::string(bereich) + " class=\"" + std::string(klasse) +
                          "\"" + std::string(*geraet) + ">");
    dok_.feld(ebene + 1, "title", s[App_eigener_text] == "1" ? std::string_view(s[App_tastentext]) : text);
    dok_.feld(ebene + 1, "address",
              "I" + std::to_string(ereignis / 4) + "-" + std::to_string(ereignis % 4 + 1));
    if (s[App_mit_icon] == "1") dok_.feld(ebene + 1, "icon", s[App_icon_name]);
    if (s[App_mit_rueckmeldung] == "1") {
      dok_.feld(ebene + 1, "feedbackaddress", Ausgang_text(s[App_rueckmeldung]));
    }
    if (s[App_mit_bestaetigung] == "1") bestaetigungen(ebene + 1, s);
    dok_.ende(ebene);
  }
  void bestaetigungen(int ebene, Satz s) {
    const str& art = s[App_frage_art];
    if (art == "0") bestaetigung(ebene, "", s, App_frage1);
    // The blank before "=" is part of the format.
    if (art == "1" || art == "3") bestaetigung(ebene, " forstate =\"off\"", s, App_frage1);
    if (art == "2" || art == "3") bestaetigung(ebene, " forstate =\"on\"", s, App_frage2);
  }
  // Question, yes and no stand side by side in the record.
  void bestaetigung(int ebene, std::string_view zustand, Satz s, std::size_t frage) {
    dok_.zeile(ebene, "<confirmation" + std::string(zustand) + " keyok=" + Gefasst(s[frage + 1]) +
                          " keyabort=" + Gefasst(s[frage + 2]) + ">" + Xml_text(s[frage]) +
                          "</confirmation>");
  }

  void kamera(int i) {
    if (p_.Kamera_aktiv[i] != "1") return;
    const std::int64_t strom = Zahl_lesen(p_.Kamera_stream_von[i]).value_or(0);  // any number, in a file
    dok_.zeile(1, "<node type=\"cameraview\" usecase=" + Gefasst(p_.Kamera_usecase[i]) + " cid=\"" +
                      std::to_string(i) + "\">");
    dok_.feld(2, "title", p_.Kamera_titel[i], " ");
    dok_.feld(2, "subtitle", p_.Kamera_untertitel[i], " ");
    dok_.zeile(2, "<mediaserver forstream=\"audio_video\" ipaddress=" + Gefasst(p_.Kamera_ip[i]) +
                      " httpport=" + Gefasst(p_.Kamera_port[i]) + " controlport=" +
                      Gefasst(p_.Kamera_controlport[i]) + " streamportpool=\"" + std::to_string(strom) + "-" +
                      std::to_string(strom + 5) + "\" devicemodel=" + Gefasst(p_.Kamera_modell[i]) + "/>");
    kamerataste(p_.Kamera_taste1[i], p_.Kamera_tastentext1[i]);
    kamerataste(p_.Kamera_taste2[i], p_.Kamera_tastentext2[i]);
    dok_.ende(1);
  }
  // "" and "0" are no key.
  void kamerataste(std::string_view nummer, std::string_view text) {
    const auto ereignis = Zahl_lesen(nummer, 1, eingangsereignisse - 1);
    if (ereignis) knopf(2, *ereignis, text, "");
  }

  const Projekt& p_;
  std::vector<int> kombinationen_;
  std::vector<Taste_im_haus> tasten_;
  Dokument dok_;
};

}  // namespace

std::string App_xml_bauen(const Projekt& p) { return Verfasser(p).schreiben(); }

App_umfang App_zaehlen(const Projekt& p) { return Verfasser(p).zaehlen(); }

bool App_xml_schreiben(const std::string& pfad, std::string_view App_xml) {
  const Dateiergebnis ergebnis = Datei_schreiben(pfad, App_xml);
  if (ergebnis) return true;
  Dateifehler_melden(ergebnis.fehler,
                     ". Die Datei mit diesem Namen ist möglicherweise schreibgeschützt. Speichern Sie sie "
                     "mit einem anderen Namen oder in einen anderen Ordner.");
  return false;
}

bool App_xml_export(std::string* pfad) {
  const std::string App_xml = App_xml_bauen(projekt);
  const auto wahl = oberflaeche().Datei_speichern({.titel = "Export für ZAVapp",
                                                   .ordner = einstellungen.Standard_ordner,
                                                   .vorschlag = "zavappdescriptor",
                                                   .endung = ".xml",
                                                   .filter = {{"XML-Datei (*.xml)", "*.xml"}},
                                                   .ueberschreiben_fragen = true});
  if (!wahl) return false;
  if (pfad != nullptr) *pfad = wahl->pfad;
  return App_xml_schreiben(wahl->pfad, App_xml);
}

bool App_daten_moeglich() {
  if (projekt.Datei_version != "800" && projekt.Datei_version != "900") return true;
  Melden(std::string("Wenn Sie die neuen Funktionen von ") + programm_version +
         " nutzen möchten, wählen Sie 'Speichern unter' und den Dateityp 910. Achtung: Das Betriebssystem "
         "des ZAVmasters muss auf die Version 9 aufgerüstet werden.");
  return false;
}

}  // namespace zav
