// What a project says of the phone app: keys with their properties, storeys, rooms and cameras with any text
// and number. The descriptor must stay a document whose elements close in turn, whatever the texts hold; it
// and its counts agree; the app's windows open on it, and leaving them with "OK" changes nothing.
#include <string>
#include <vector>

#include "app/app_eigenschaften_seite.h"
#include "app/deskriptor.h"
#include "app/eigenschaften.h"
#include "app/ip_kameras.h"
#include "basis/windows1252.h"
#include "eingabe.h"
#include "store/kamera.h"
#include "store/katalog.h"
#include "store/sitzung.h"

using namespace zav;

namespace {

std::string Text(Eingabe& e) { return Aus_1252(e.text(e.byte() % 64)); }

// The places that a target input reaches: few, so that what it writes meets.
constexpr int komb_anzahl = 2, platz_anzahl = 4, ereignis_anzahl = 64;

void Aendern(Eingabe& e, Projekt& p) {
  const std::size_t was = e.byte();
  const int k = static_cast<int>(e.byte());
  const int d = plaetze * (k % komb_anzahl) + k / komb_anzahl % platz_anzahl;
  switch (was % 8) {
    case 0: p.Komb_text[k % komb_anzahl] = Text(e); break;
    case 1: p.Komb_text2[k % komb_anzahl] = Text(e); break;
    case 2: p.App_typ[d] = static_cast<i16>(e.wort()); break;
    case 3: p.App_text[d] = Text(e); break;
    case 4: p.App_text2[d] = Text(e); break;
    case 5: p.Dev_text[8 * d + static_cast<int>(was / 8 % 8)] = Text(e); break;
    case 6: p.App_eigenschaften.zeile(k % ereignis_anzahl)[e.byte() % app_felder] = Text(e); break;
    case 7:
      if (k % 16 == 15) {
        p.App_allgemein[0] = Text(e);
      } else {
        (p.*kamerafelder[static_cast<std::size_t>(k) % kamerafelder.size()])[k / 16 % kameras] = Text(e);
      }
      break;
  }
}

// A whole project takes longer to copy than all the rest of a run.
void Zuruecksetzen(Projekt& p) {
  static const Projekt frisch;
  for (int i = 0; i < plaetze * komb_anzahl; ++i) {
    p.App_typ[i] = frisch.App_typ[i];
    for (const auto feld : {&Projekt::App_text, &Projekt::App_text2}) (p.*feld)[i].clear();
  }
  for (int i = 0; i < 8 * plaetze * komb_anzahl; ++i) p.Dev_text[i].clear();
  for (int k = 0; k < komb_anzahl; ++k) {
    for (const auto feld : {&Projekt::Komb_text, &Projekt::Komb_text2}) (p.*feld)[k].clear();
  }
  p.App_eigenschaften = frisch.App_eigenschaften;
  p.App_allgemein = frisch.App_allgemein;
  p.Kamera_text = frisch.Kamera_text;
  for (const auto feld : kamerafelder) p.*feld = frisch.*feld;
}

// Counts the buttons of the rooms while it checks that each line opens and closes what it may.
int Dokument_pruefen(const std::string& xml) {
  Verlangen(xml.starts_with("\xEF\xBB\xBF<?xml "), "the document begins with its mark");
  std::vector<std::string> offen;
  int knoepfe = 0;
  for (std::size_t i = 0; (i = xml.find('<', i)) != std::string::npos;) {
    const std::size_t bis = xml.find('>', i);
    Verlangen(bis != std::string::npos, "every element has its end");
    const std::string_view marke = std::string_view(xml).substr(i + 1, bis - i - 1);
    Verlangen(marke.find('<') == marke.npos, "no text opens an element");
    const std::string name(marke.substr(0, marke.find(' ')));
    if (marke[0] == '/') {
      Verlangen(!offen.empty() && offen.back() == marke.substr(1), "elements close in turn");
      offen.pop_back();
    } else if (marke[0] != '?' && marke[0] != '!' && !marke.ends_with('/')) {
      offen.push_back(name);
      knoepfe += marke.starts_with("node type=\"button\" class=");
    }
    i = bis;
  }
  Verlangen(offen.empty(), "every element is closed");
  return knoepfe;
}

void Fenster_oeffnen() {
  sitzung.Projekt_geaendert = 0;
  for (int d = 0; d < plaetze * komb_anzahl; d += plaetze) {
    App_eigenschaften_seite seite(d, 0);
    seite.OK.druecken();
  }
  IP_Kameras kameras;
  kameras.Command2.druecken();
  Verlangen(sitzung.Projekt_geaendert == 0, "looking changes nothing");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t n) {
  Eingabe e(bytes, n);
  Zuruecksetzen(projekt);
  while (!e.leer()) Aendern(e, projekt);
  Kamera_zusammensetzen(projekt);

  const App_umfang umfang = App_zaehlen(projekt);
  Verlangen(umfang.kameras <= kameras, "no more cameras than there are");
  const int knoepfe = Dokument_pruefen(App_xml_bauen(projekt));
  Verlangen(knoepfe >= umfang.normale && knoepfe <= umfang.normale + 2 * umfang.kameras,
            "what is counted is written");
  Fenster_oeffnen();

  const App_automatik automatik(projekt);
  for (int d = 0; d < platz_anzahl; ++d) {
    const auto lauf = Apparat_adressen(projekt, d);
    if (lauf && lauf->anzahl > 0)
      automatik.fuellen(d, 0, projekt.App_eigenschaften.zeile(lauf->erstes_ereignis()));
  }
  Dokument_pruefen(App_xml_bauen(projekt));
  return 0;
}
