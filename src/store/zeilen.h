// The layout of the project file: its lines in their order, one sequence for each generation, over an archive
// that writes or reads them (archiv.h). The file has no keys, so a line's meaning is its place: never add,
// drop or move one. docs/dateiformat.md shows the same as a table.
#pragma once

#include "store/archiv.h"
#include "store/projekt.h"
#include "store/projektdatei.h"

namespace zav {

// Line 3 of every file since generation 800: the dimmer parameters need no correction.
inline constexpr const char* marke_neu = "ETB";

// Present code of the old codes "0" to "11"; an entry that equals its own number was the same.
inline constexpr Codetafel alte_codes_ein{0, 2, 1, 4, 3, 5, 7, 7, 8, 9, 10, 11};
inline constexpr Codetafel alte_codes_tev{0, 2, 1, 5, 3, 4, 6, 7, 8, 9, 10, 11};
inline constexpr Codetafel alte_codes_uhr{0, 2, 1, 5, 8, 7, 11, 20, 19, 14, 13, 17};

// ---- sections, present in several generations -------------------------------------------------------------

template <class A, class P>
void Zeilen_kopf(A& a, P& p) {
  a.marke(marke_neu);
  for (int i = 0; i < 3; ++i) a.fest("");
  a.notizen(p.Notizen);
}

template <class A, class P>
void Zeilen_wetter(A& a, P& p) {
  for (int i = 0; i < wetterfunktionen; ++i) {
    a.text(p.Wetter_aktiv[i], p.Wetter_text[i], p.Wetter_sonne_ost[i], p.Wetter_sonne_sued[i],
           p.Wetter_sonne_west[i], p.Wetter_licht[i], p.Wetter_aussen[i], p.Wetter_innen[i], p.Wetter_wind[i],
           p.Wetter_r1[i], p.Wetter_r2[i], p.Wetter_r3[i], p.Wetter_warte1[i], p.Wetter_wiederh1[i],
           p.Wetter_warte2[i], p.Wetter_wiederh2[i]);
    a.zahl(p.Wetter_undoder[i], p.Wetter_v_ost[i], p.Wetter_v_sued[i], p.Wetter_v_west[i],
           p.Wetter_v_licht[i], p.Wetter_v_aussen[i], p.Wetter_v_innen[i], p.Wetter_v_wind[i],
           p.Wetter_v_richtung[i], p.Wetter_v_regen[i], p.Wetter_v_defekt[i], p.Wetter_ausgang[i],
           p.Wetter_start[i]);
  }
}

// Only Kombinationen in use take lines behind their text.
template <class A, class P>
void Zeilen_kombinationen(A& a, P& p) {
  a.text(p.Komb_text);
  for (int i = 0; i < kombinationen; ++i) {
    if (p.Komb_text[i].empty()) continue;
    a.zahl(p.Komb_typ[i]);
    a.text(p.Komb_text2[i]);
    a.zahl(p.Komb_layout[i]);
    for (int app = plaetze * i; app < plaetze * (i + 1); ++app) {
      a.zahl(p.App_typ[app]);
      a.text(p.App_text[app], p.App_text2[app]);
    }
    constexpr int tasten = plaetze * tastenplaetze;
    for (int taste = tasten * i; taste < tasten * (i + 1); ++taste) {
      a.text(p.Dev_text[taste]);
      a.zahl(p.Dev_adr[taste]);
    }
  }
}

template <class A, class P>
void Zeilen_eingaenge(A& a, P& p) {
  a.text(p.Grp_text, p.Ein_text);
}

template <class A, class P>
void Zeilen_uhrregeln(A& a, P& p) {
  for (int i = 0; i < uhrereignisse; ++i) a.zahl(p.Uhr_astro[i], p.Uhr_tag[i], p.Uhr_f6[i], p.Uhr_f7[i]);
  for (int i = 0; i < uhrereignisse; ++i)
    a.text(p.Uhr_f1[i], p.Uhr_f2[i], p.Uhr_f3[i], p.Uhr_f4[i], p.Uhr_f5[i]);
  a.zahl(p.Seq_flag);
}

// Texts, function matrices and outputs. The flags of the events in use must have been read before.
template <class A, class P>
void Zeilen_funktionen(A& a, P& p) {
  a.text(p.Relais_text, p.Dimmer_text, p.Uhr_text, p.Uhr_zeit, p.Seq_datum);
  a.alte_codes(p.Ein_relais, p.Ein_leer, alte_codes_ein);
  a.duenn(p.Ein_dimmer, p.Ein_leer);
  a.duenn(p.Ein_timer, p.Ein_leer);
  a.duenn(p.Uhr_timer, p.Uhr_leer);
  a.text(p.Timer_text, p.Timer_zeit);
  a.alte_codes(p.Tev_relais, p.Tev_leer, alte_codes_tev);
  a.duenn(p.Tev_dimmer, p.Tev_leer);
  a.duenn(p.Relais_neustart);
  a.duenn(p.Relais_neustart_a);
  a.duenn(p.Ein_led, ausgang_keiner);
  a.duenn(p.Ein_param);
  a.duenn(p.Dimmer_modus);
  a.duenn(p.Grp_thermo);
  a.alte_codes(p.Uhr_relais, p.Uhr_leer, alte_codes_uhr);
  a.duenn(p.Uhr_dimmer, p.Uhr_leer);
  a.zahl_oder_null(p.Seq_uhr, p.Seq_mo_so, p.Seq_taeglich, p.Dimmer_neustart, p.Grp_typ);
}

template <class A, class P>
void Zeilen_schalter(A& a, P& p) {
  a.schalter(p.Seq_manuell, p.Seq_mitternacht, p.Seq_neustart);
  a.zahl(p.Store_p1, p.Store_p2, p.Store_p3, p.Store_p4, p.Store_p5);
}

template <class A, class P>
void Zeilen_enocean(A& a, P& p) {
  for (int i = 0; i < apparate; ++i) {
    if (p.Komb_text[i / plaetze].empty()) continue;
    a.text(p.App_enocean_id[i], p.App_enocean_schluessel[i], p.App_enocean_text3[i]);
    a.zahl(p.App_enocean_empf[i], p.App_enocean_art[i], p.App_enocean_wert[i], p.App_enocean_res1[i],
           p.App_enocean_res2[i]);
  }
  for (int i = 0; i < empfaenger; ++i) {
    a.zahl(p.Enocean_empf_da[i], p.Enocean_empf_geaendert[i]);
    a.text(p.Enocean_empf_ort[i]);
  }
}

// ---- the generations, each from its third line on ---------------------------------------------------------

template <class A, class P>
void Zeilen_800_ohne_kamera(A& a, P& p) {
  Zeilen_kopf(a, p);
  a.text(p.Projekt_kennung);
  a.zahl(p.Sowi_modus);
  Zeilen_wetter(a, p);
  Zeilen_kombinationen(a, p);
  a.zahl(p.Grp_led, p.Ein_funktext, p.Uhr_funktext, p.Tev_funktext, p.Uhr_tabelle_geaendert);
  Zeilen_eingaenge(a, p);
  Zeilen_uhrregeln(a, p);
  a.zahl(p.Ein_leer, p.Uhr_leer, p.Tev_leer);
  Zeilen_funktionen(a, p);
  Zeilen_schalter(a, p);
}

template <class A, class P>
void Zeilen_800(A& a, P& p) {
  Zeilen_800_ohne_kamera(a, p);
  a.text(p.Kamera_text);
}

template <class A, class P>
void Zeilen_900(A& a, P& p) {
  Zeilen_800_ohne_kamera(a, p);
  Zeilen_enocean(a, p);
  a.text(p.Kamera_text);
}

template <class A, class P>
void Zeilen_910(A& a, P& p) {
  Zeilen_800_ohne_kamera(a, p);
  Zeilen_enocean(a, p);
  a.text(p.App_allgemein);
  a.texte_mit_cr(p.App_eigenschaften);
  a.text(p.Kamera_text);
}

// ---- generations that are only read -----------------------------------------------------------------------

// They have one line less before the notes, and no marker.
template <class A, class P>
void Zeilen_kopf_alt(A& a, P& p) {
  for (int i = 0; i < 3; ++i) a.fest("");
  a.notizen(p.Notizen);
}

template <class A, class P>
void Zeilen_ab_flaggen_alt(A& a, P& p) {
  for (int i = 0; i < eingangsereignisse; ++i) a.zahl(p.Ein_leer[i], p.Ein_funktext[i]);
  for (int i = 0; i < uhrereignisse; ++i) a.zahl(p.Uhr_leer[i], p.Uhr_funktext[i]);
  for (int i = 0; i < timerereignisse; ++i) a.zahl(p.Tev_leer[i], p.Tev_funktext[i]);
  Zeilen_funktionen(a, p);
  Zeilen_schalter(a, p);
}

// Generation 700 has the same lines with old function codes.
template <class A, class P>
void Zeilen_710(A& a, P& p) {
  Zeilen_kopf_alt(a, p);
  Zeilen_eingaenge(a, p);
  Zeilen_uhrregeln(a, p);
  Zeilen_ab_flaggen_alt(a, p);
}

template <class A, class P>
void Zeilen_600(A& a, P& p) {
  Zeilen_kopf_alt(a, p);
  Zeilen_eingaenge(a, p);
  Zeilen_ab_flaggen_alt(a, p);
}

// The small system: the first part of each array, and every row of the matrices.
template <class A, class P>
void Zeilen_500(A& a, P& p) {
  constexpr std::size_t grp = 64;
  constexpr std::size_t ein = 256;
  constexpr std::size_t rel = 128;
  constexpr std::size_t dim = 32;
  const auto erste = [](auto& feld, std::size_t n) { return feld.alle().first(n); };

  Zeilen_kopf_alt(a, p);
  a.text(erste(p.Grp_text, grp), erste(p.Ein_text, ein), erste(p.Relais_text, rel), erste(p.Dimmer_text, dim),
         p.Uhr_text, p.Uhr_zeit, p.Seq_datum);
  for (std::size_t i = 0; i < ein; ++i) a.alte_codes(p.Ein_relais.zeile(i).first(rel), alte_codes_ein);
  for (std::size_t i = 0; i < ein; ++i) a.duenn(p.Ein_dimmer.zeile(i).first(dim * dimmerparameter));
  a.duenn(erste(p.Relais_neustart, rel));
  a.duenn(erste(p.Relais_neustart_a, rel));
  a.duenn(erste(p.Ein_led, ein), ausgang_keiner);
  a.duenn(p.Ein_param);
  a.duenn(erste(p.Dimmer_modus, dim));
  a.duenn(erste(p.Grp_thermo, grp));
  for (int i = 0; i < uhrereignisse; ++i) a.alte_codes(p.Uhr_relais.zeile(i).first(rel), alte_codes_uhr);
  for (int i = 0; i < uhrereignisse; ++i) a.duenn(p.Uhr_dimmer.zeile(i).first(dim * dimmerparameter));
  a.zahl_oder_null(p.Seq_uhr, p.Seq_mo_so, p.Seq_taeglich, erste(p.Dimmer_neustart, dim),
                   erste(p.Grp_typ, grp));
  Zeilen_schalter(a, p);
}

}  // namespace zav
