// Weather functions, radio senders, the phone app and its cameras.
#include "editor/actmask.h"
#include "form/oberflaeche.h"
#include "store/katalog.h"
#include "wirkungen.h"

namespace zav::beispiel {

namespace {

struct {
  int wetter = 0, kamera = 0;
} naechste;

int stelle(const Apparat& a) { return plaetze * a.raum.kombination + a.platz; }
int ereignis(const Taste& t) {
  return Apparat_adressen(projekt, stelle(t.apparat))->erstes_ereignis() + t.versatz;
}

auto& app(const Taste& t, App_feld f) { return projekt.App_eigenschaften.zeile(ereignis(t))[f]; }

}  // namespace

// ---- radio ---------------------------------------------------------------------------

void empfaenger(int nummer, Text ort) {
  projekt.Enocean_empf_da[nummer] = 1;
  projekt.Enocean_empf_geaendert[nummer] = 1;
  projekt.Enocean_empf_ort[nummer] = ort;
}

void funksender(Apparat a, Text id, Text schluessel, int empfaenger) {
  projekt.App_enocean_id[stelle(a)] = id;
  projekt.App_enocean_schluessel[stelle(a)] = schluessel;
  projekt.App_enocean_empf[stelle(a)] = static_cast<i16>(empfaenger);
}

// ---- weather ---------------------------------------------------------------------------

Bedingung wind_ueber(int wert) { return {&Projekt::Wetter_wind, &Projekt::Wetter_v_wind, 2, wert}; }
Bedingung sonne_sued_ueber(int wert) {
  return {&Projekt::Wetter_sonne_sued, &Projekt::Wetter_v_sued, 2, wert};
}
Bedingung sonne_west_ueber(int wert) {
  return {&Projekt::Wetter_sonne_west, &Projekt::Wetter_v_west, 2, wert};
}
Bedingung licht_unter(int wert) { return {&Projekt::Wetter_licht, &Projekt::Wetter_v_licht, 1, wert}; }
Bedingung aussen_unter(int wert) { return {&Projekt::Wetter_aussen, &Projekt::Wetter_v_aussen, 1, wert}; }
Bedingung aussen_ueber(int wert) { return {&Projekt::Wetter_aussen, &Projekt::Wetter_v_aussen, 2, wert}; }
Bedingung regen() { return {nullptr, &Projekt::Wetter_v_regen, 1, 0}; }

void wetterfunktion(Apparat station, const Wetterfunktion& f) {
  const int n = naechste.wetter++;
  projekt.Wetter_text[n] = f.name;
  projekt.Wetter_undoder[n] = f.alle_noetig ? 1 : 0;
  projekt.Wetter_ausgang[n] = static_cast<i16>(f.freigabe.ausgang);
  if (!f.warten.empty()) projekt.Wetter_warte1[n] = f.warten;
  if (!f.warten_danach.empty()) projekt.Wetter_warte2[n] = f.warten_danach;
  for (const Bedingung& b : f.bedingungen) {
    if (b.schwelle != nullptr) (projekt.*b.schwelle)[n] = std::to_string(b.wert);
    (projekt.*b.vergleich)[n] = static_cast<i16>(b.code);
  }
  const auto belegen = [&](int versatz, const Wirkungen& w) {
    zav::Taste knopf;
    const int e = ereignis({station, versatz});
    knopf.wenn_gedrueckt = [&] {
      Actmask maske(e, f.name);
      oberflaeche().Zeigen(maske);
    };
    funktionen<Actmask>(knopf, w);
    Leer_berechnen(Ereignisart::Eingang, e);
  };
  belegen(2 * n, f.erfuellt);
  belegen(2 * n + 1, f.nicht_erfuellt);
}

// ---- app and cameras ---------------------------------------------------------------------------

void in_der_app(Taste t, Text symbol, Geraet g) {
  app(t, App_geraet) = std::to_string(static_cast<int>(g));
  app(t, App_mit_icon) = "1";
  app(t, App_icon_name) = symbol;
  const i16 rueckmeldung = projekt.Ein_led[ereignis(t)];
  if (rueckmeldung == ausgang_keiner) return;
  app(t, App_mit_rueckmeldung) = "1";
  app(t, App_rueckmeldung) = std::to_string(rueckmeldung);
}

void mit_frage(Taste t, Text frage, Text ja, Text nein) {
  app(t, App_mit_bestaetigung) = "1";
  app(t, App_frage1) = frage;
  app(t, App_ja1) = ja;
  app(t, App_nein1) = nein;
}

void als_szene(Taste t) {
  app(t, App_geraet) = "3";
  app(t, App_bereich) = "2";
  app(t, App_als_szene) = "1";
  app(t, App_mit_icon) = app(t, App_mit_rueckmeldung) = app(t, App_mit_bestaetigung) = "0";
}

void kamera(const Kamera& k) {
  const int i = naechste.kamera++;
  projekt.Kamera_titel[i] = k.titel;
  projekt.Kamera_untertitel[i] = k.ort;
  projekt.Kamera_ip[i] = k.ip;
  projekt.Kamera_port[i] = k.port;
  projekt.Kamera_controlport[i] = "8081";
  projekt.Kamera_stream_von[i] = "50000";
  projekt.Kamera_modell[i] = k.modell;
  projekt.Kamera_aktiv[i] = "1";
  projekt.Kamera_usecase[i] = "1";
  projekt.Kamera_taste1[i] = std::to_string(ereignis(k.taste));
  projekt.Kamera_tastentext1[i] = k.tastentext;
  projekt.Kamera_text[i] = "";  // defined from here on
}

}  // namespace zav::beispiel
