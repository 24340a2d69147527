// The members of a project with their names: for the listing of a whole project, comparisons and tests.
#pragma once

#include <tuple>

#include "store/projekt.h"

namespace zav {

// clang-format off
// Every member of Projekt, in the order of its declaration.
#define ZAV_FELDER(F) \
  F(Projekt_name), F(Datei_version), F(Notizen), F(Projekt_kennung), F(Uhr_tabelle_geaendert),            \
  F(Grp_text), F(Grp_led), F(Grp_thermo), F(Grp_typ), F(Ein_text), F(Ein_leer), F(Ein_funktext),          \
  F(Ein_led), F(Uhr_leer), F(Uhr_funktext), F(Uhr_text), F(Uhr_zeit), F(Tev_leer), F(Tev_funktext),       \
  F(Relais_text), F(Dimmer_text), F(Timer_text), F(Timer_zeit), F(Ein_relais), F(Ein_timer),              \
  F(Ein_dimmer), F(Uhr_relais), F(Uhr_timer), F(Uhr_dimmer), F(Tev_relais), F(Tev_dimmer),                \
  F(Relais_neustart), F(Relais_neustart_a), F(Dimmer_neustart), F(Dimmer_modus), F(Ein_param),            \
  F(Store_p1), F(Store_p2), F(Store_p3), F(Store_p4), F(Store_p5), F(Uhr_astro), F(Uhr_tag), F(Uhr_f1),   \
  F(Uhr_f2), F(Uhr_f3), F(Uhr_f4), F(Uhr_f5), F(Uhr_f6), F(Uhr_f7), F(Seq_datum), F(Seq_uhr),             \
  F(Seq_mo_so), F(Seq_taeglich), F(Seq_flag), F(Seq_manuell), F(Seq_mitternacht), F(Seq_neustart),        \
  F(Sowi_modus), F(Wetter_aktiv), F(Wetter_text), F(Wetter_sonne_ost), F(Wetter_sonne_sued),              \
  F(Wetter_sonne_west), F(Wetter_licht), F(Wetter_aussen), F(Wetter_innen), F(Wetter_wind), F(Wetter_r1), \
  F(Wetter_r2), F(Wetter_r3), F(Wetter_warte1), F(Wetter_wiederh1), F(Wetter_warte2), F(Wetter_wiederh2), \
  F(Wetter_undoder), F(Wetter_v_ost), F(Wetter_v_sued), F(Wetter_v_west), F(Wetter_v_licht),              \
  F(Wetter_v_aussen), F(Wetter_v_innen), F(Wetter_v_wind), F(Wetter_v_richtung), F(Wetter_v_regen),       \
  F(Wetter_v_defekt), F(Wetter_ausgang), F(Wetter_start), F(Komb_typ), F(Komb_text), F(Komb_text2),       \
  F(Komb_layout), F(App_typ), F(App_text), F(App_text2), F(Dev_text), F(Dev_adr), F(App_enocean_id),      \
  F(App_enocean_schluessel), F(App_enocean_text3), F(App_enocean_empf), F(App_enocean_art),               \
  F(App_enocean_wert), F(App_enocean_res1), F(App_enocean_res2), F(Enocean_empf_da),                      \
  F(Enocean_empf_geaendert), F(Enocean_empf_ort), F(App_allgemein), F(App_eigenschaften), F(Kamera_text), \
  F(Kamera_titel), F(Kamera_untertitel), F(Kamera_ip), F(Kamera_port), F(Kamera_controlport),             \
  F(Kamera_stream_von), F(Kamera_modell), F(Kamera_res8), F(Kamera_aktiv), F(Kamera_usecase),             \
  F(Kamera_taste1), F(Kamera_taste2), F(Kamera_tastentext1), F(Kamera_tastentext2)
// clang-format on
#define ZAV_FELD_ZEIGER(name) \
  Mitglied { #name, &Projekt::name }
#define ZAV_FELD_NAME(name) name

template <class T>
struct Mitglied {
  const char* name;
  T Projekt::*zeiger;
};
template <class T>
Mitglied(const char*, T Projekt::*) -> Mitglied<T>;

inline constexpr std::tuple projekt_felder{ZAV_FELDER(ZAV_FELD_ZEIGER)};

// Compiles only while the list names every member once: as many names as members, all different.
inline void Felder_vollstaendig(const Projekt& p) {
  [[maybe_unused]] const auto& [ZAV_FELDER(ZAV_FELD_NAME)] = p;
}

#undef ZAV_FELD_NAME
#undef ZAV_FELD_ZEIGER
#undef ZAV_FELDER

// Calls f(name, member) for every member of the project.
template <class P, class F>
void Felder_besuchen(P& p, F f) {
  std::apply([&](const auto&... m) { (f(m.name, p.*m.zeiger), ...); }, projekt_felder);
}

}  // namespace zav
