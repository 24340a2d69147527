// The phone app and its cameras.
#include "store/katalog.h"
#include "wirkungen.h"

namespace zav::beispiel {

namespace {

int naechste_kamera = 0;

int ereignis(const Taste& t) {
  const int stelle = plaetze * t.apparat.raum.kombination + t.apparat.platz;
  return Apparat_adressen(projekt, stelle)->erstes_ereignis() + t.versatz;
}

auto& app(const Taste& t, App_feld f) { return projekt.App_eigenschaften.zeile(ereignis(t))[f]; }

}  // namespace

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
  const int i = naechste_kamera++;
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
