// The phone app and its cameras.
#include <algorithm>

#include "app/app_eigenschaften_seite.h"
#include "app/ip_kameras.h"
#include "gebaeude.h"
#include "store/katalog.h"

namespace zav::beispiel {

namespace {

int naechste_kamera = 0;

// Opens the app properties from the popup of the key's button.
void eigenschaften(const Taste& t, const std::function<void(App_eigenschaften_seite&)>& arbeit) {
  Einmask8& e = editor(t.apparat);
  nummer(e.Command15, t.versatz).rechts_druecken();
  arbeitsplatz().dialog<App_eigenschaften_seite>(e.mnuEigenschaften, arbeit);
}

// The key in a list of keys, which begin with address and number.
void taste_waehlen(Auswahl& liste, const Taste& t) {
  const auto lauf = *Apparat_adressen(projekt, plaetze * t.apparat.raum.kombination + t.apparat.platz);
  const std::string anfang =
      "I" + std::to_string(lauf.von + t.versatz / 4) + "-" + std::to_string(t.versatz % 4 + 1) + ":";
  const auto eintrag = std::ranges::find_if(
      liste.eintraege(), [&](const Auswahl::Eintrag& e) { return e.text.starts_with(anfang); });
  fordern(eintrag != liste.eintraege().end(), "Taste nicht in der Liste: " + anfang);
  liste.waehlen(static_cast<int>(eintrag - liste.eintraege().begin()));
}

}  // namespace

void in_der_app(Taste t, Text symbol, Geraet g) {
  eigenschaften(t, [&](App_eigenschaften_seite& f) {
    f.Command1.druecken();  // finds the output that tells the key's state
    f.Combo2.waehlen(static_cast<int>(g));
    f.Combo1.waehlen(symbol);
  });
}

void mit_frage(Taste t, Text frage, Text ja, Text nein) {
  eigenschaften(t, [&](App_eigenschaften_seite& f) {
    f.Check8.haken(true);
    tippen(f.Text15, frage);
    tippen(f.Text16, ja);
    tippen(f.Text17, nein);
  });
}

void als_szene(Taste t) {
  eigenschaften(t, [&](App_eigenschaften_seite& f) {
    f.Combo2.waehlen("Telefon und Tablet");
    f.Combo3.waehlen("Im Raum und global");
    f.Check9.haken(true);
  });
}

void kamera(const Kamera& k) {
  auto& f = arbeitsplatz().fenster<IP_Kameras>();
  f.TabStrip1.waehlen(naechste_kamera++);
  f.Check1.haken(true);
  f.Combo1.waehlen(k.typ);
  tippen(f.Text1, k.titel);
  tippen(f.Text2, k.ort);
  tippen(f.Text3, k.ip);
  tippen(f.Text4, k.port);
  taste_waehlen(f.Combo2, k.taste);
  tippen(f.Text8, k.tastentext);
}

}  // namespace zav::beispiel
