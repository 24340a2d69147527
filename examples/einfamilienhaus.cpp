// The family Müller's house, as its installer would tell it: room by room, then the clocks, the weather, the radio
// senders and the app. Writes the project file whose name is given.
#include "installateur.h"

using namespace zav::beispiel;  // NOLINT: the story reads in the installer's words

namespace {

// Kinds of devices, as the catalogue numbers them.
enum Art {
  einfachtaster = 2,
  zweifachtaster = 6,
  vierfachtaster = 14,
  achtfachtaster = 30,
  steckdose = 36,
  drehthermostat = 39,
  klingeltaste = 42,
  gong = 44,
  bewegungsmelder = 45,
  ir_handsender = 66,
  wetterstation = 75,
  eingangsbaugruppe = 76,
  funk_zweifach = 81,
  funk_vierfach = 84,
  funk_handsender = 87,
  funk_magnetkontakt = 88,
};

// Slots of the key devices, from the bottom up; a single key uses `oben_links`.
constexpr int unten_links = 0, unten_rechts = 1, oben_links = 2, oben_rechts = 3;
// The second half of the device with eight keys.
constexpr int neben = 4;

const std::string eg = "Erdgeschoss", og = "1. Obergeschoss", ug = "Untergeschoss", aussen = "Aussen";

void haus_mueller() {
  neues_projekt("Haus Müller",
                "Einfamilienhaus Müller, Höhenweg 7\r\nSchaltschrank im Technikraum, Reserve: O7, D7\r\n"
                "Nachtabsenkung: 22 bis 6 Uhr, am Wochenende bis 7.30 Uhr");

  // ---- what is wired: lights, dimmers, blinds, valves ---------------------------------------------------------------
  const Licht entree_licht = licht("Entrée Decke"), windfang = licht("Windfang"), treppe_licht = licht("Treppenhaus");
  const Licht wc_licht = licht("WC Spiegel"), wc_luefter = licht("WC Lüfter"), buero_decke = licht("Büro Decke");
  const Licht kueche_decke = licht("Küche Decke"), kueche_arbeit = licht("Küche Arbeitsfläche");
  const Licht korridor = licht("Korridor OG"), ankleide_licht = licht("Ankleide"), bad_decke = licht("Bad Eltern Decke");
  const Licht bad_spiegel = licht("Bad Eltern Spiegel"), dusche = licht("Bad Kinder Decke");
  const Licht dusche_luefter = licht("Bad Kinder Lüfter"), gast_decke = licht("Gästezimmer Decke");
  const Licht technik_licht = licht("Technikraum"), wasch_licht = licht("Waschküche"), keller_licht = licht("Kellergang");
  const Licht hobby_decke = licht("Hobbyraum Decke"), garage_licht = licht("Garage"), garage_tor = licht("Garagentor");
  const Licht vorplatz = licht("Vorplatz Leuchten"), terrasse_wand = licht("Terrasse Wand"), garten = licht("Garten Wege");
  const Licht brunnen = licht("Brunnenpumpe"), weihnacht = licht("Weihnachtsbeleuchtung"), klingel = licht("Gong");
  const Licht ventil_wohnen = licht("Ventil Wohnen"), ventil_bad = licht("Ventil Bad Eltern"), ventil_gast = licht("Ventil Gäste");

  const Dimmlicht wohnen_decke = dimmlicht("Wohnen Decke"), wohnen_wand = dimmlicht("Wohnen Wandleuchten");
  const Dimmlicht essen_tisch = dimmlicht("Esstisch"), essen_rand = dimmlicht("Essen Randlicht");
  const Dimmlicht kueche_insel = dimmlicht("Küche Insel"), eltern_decke = dimmlicht("Eltern Decke");
  const Dimmlicht eltern_bett = dimmlicht("Eltern Bettleuchten"), anna_decke = dimmlicht("Anna Decke");
  const Dimmlicht joerg_decke = dimmlicht("Jörg Decke"), treppe_stufen = dimmlicht("Treppenstufen");
  const Dimmlicht terrasse_pergola = dimmlicht("Pergola"), hobby_kino = dimmlicht("Hobbyraum Leinwand");

  const Store kueche_store = storen("Küche"), essen_store = storen("Essen"), wohnen_sued = storen("Wohnen Süd");
  const Store wohnen_west = storen("Wohnen West"), buero_store = storen("Büro"), eltern_store = storen("Eltern");
  const Store anna_store = storen("Anna"), joerg_store = storen("Jörg"), gast_store = storen("Gäste");
  const Store bad_store = storen("Bad Eltern"), markise = storen("Markise"), dachfenster = storen("Dachfenster");

  const Licht absenkung = virtuell("Nachtabsenkung"), ferien = virtuell("Ferien");
  const Licht windwacht = virtuell("Windwache ein"), beschattung = virtuell("Beschattung ein");

  abschnitt({wohnen_wand, essen_rand, treppe_stufen, terrasse_pergola});
  wie_vorher_nach_neustart({absenkung, ferien, windwacht, beschattung, brunnen});

  const Wirkungen alle_storen_auf{auf(kueche_store), auf(essen_store), auf(wohnen_sued), auf(wohnen_west),
                                  auf(buero_store),  auf(eltern_store), auf(anna_store), auf(joerg_store),
                                  auf(gast_store),   auf(bad_store)};
  const Wirkungen alle_storen_ab{ab(kueche_store), ab(essen_store), ab(wohnen_sued), ab(wohnen_west),
                                 ab(buero_store),  ab(eltern_store), ab(anna_store), ab(joerg_store),
                                 ab(gast_store),   ab(bad_store)};
  const Wirkungen alles_aus{aus(entree_licht), aus(windfang),     aus(treppe_licht), aus(wc_licht),      aus(wc_luefter),
                            aus(buero_decke),  aus(kueche_decke), aus(kueche_arbeit), aus(korridor),     aus(ankleide_licht),
                            aus(bad_decke),    aus(bad_spiegel),  aus(dusche),       aus(dusche_luefter), aus(gast_decke),
                            aus(technik_licht), aus(wasch_licht), aus(keller_licht), aus(hobby_decke),   aus(garage_licht),
                            aus(terrasse_wand), aus(wohnen_decke), aus(wohnen_wand), aus(essen_tisch),   aus(essen_rand),
                            aus(kueche_insel), aus(eltern_decke), aus(eltern_bett),  aus(anna_decke),    aus(joerg_decke),
                            aus(terrasse_pergola), aus(hobby_kino)};

  // ---- staircase lights ---------------------------------------------------------------------------------------------
  const Treppenlicht treppe = treppenlicht("Treppenhaus", {ein(treppe_licht), dimmen(treppe_stufen, 100, 1)}, "00.03.00",
                                           {aus(treppe_licht), dimmen(treppe_stufen, 20)}, "00.03.30", {aus(treppe_stufen)});
  const Treppenlicht gang = treppenlicht("Kellergang", {ein(keller_licht)}, "00.05.00", {aus(keller_licht)});
  const Treppenlicht lueftung = treppenlicht("WC Nachlauf", {ein(wc_luefter)}, "00.10.00", {aus(wc_luefter)});
  const Treppenlicht ankunft = treppenlicht("Ankunft", {ein(vorplatz), ein(windfang), ein(garage_licht)}, "00.08.00",
                                            {aus(vorplatz), aus(windfang), aus(garage_licht)});

  // ---- ground floor ---------------------------------------------------------------------------------------------------
  const Raum entree = kombination(eg, "Entrée bei Haustür", senkrecht_3);
  const Apparat entree_taster = apparat(entree, achtfachtaster);
  const Taste gehen = taste(entree_taster, unten_links, "Alles aus", alles_aus);
  const Taste kommen = taste(entree_taster, unten_rechts, "Willkommen", {ein(entree_licht), starte(ankunft), dimmen(wohnen_decke, 40)});
  const Taste entree_taste = taste(entree_taster, oben_links, "Entrée", {um(entree_licht)});
  taste(entree_taster, oben_rechts, "Vorplatz", {um(vorplatz)});
  const Taste zentral_auf = taste(entree_taster, neben + unten_links, "Alle Storen auf", alle_storen_auf);
  const Taste zentral_ab = taste(entree_taster, neben + unten_rechts, "Alle Storen ab", alle_storen_ab);
  taste(entree_taster, neben + oben_links, "Ferien", {um(ferien)});
  taste(entree_taster, neben + oben_rechts, "Windwache", {um(windwacht)});
  const Apparat entree_melder = apparat(entree, bewegungsmelder);
  taste(entree_melder, unten_links, "Bewegung bei Dunkelheit", {ein(windfang)});
  taste_los(entree_melder, unten_links, {aus(windfang)});
  apparat(entree, gong);

  const Raum kueche = kombination(eg, "Küche bei Tür", senkrecht_3);
  const Apparat kueche_taster = apparat(kueche, vierfachtaster);
  const Taste kueche_decke_taste = taste(kueche_taster, unten_links, "Decke", {um(kueche_decke)});
  taste(kueche_taster, unten_rechts, "Arbeitsfläche", {um(kueche_arbeit)});
  const Taste kueche_insel_taste = taste(kueche_taster, oben_links, "Insel", {bedienen(kueche_insel)});
  const Taste kochen = taste(kueche_taster, oben_rechts, "Kochen", {ein(kueche_decke), ein(kueche_arbeit), dimmen(kueche_insel, 100)});
  storentasten(apparat(kueche, zweifachtaster), oben_links, oben_rechts, "Store", kueche_store);
  apparat(kueche, steckdose);

  const Raum essen = kombination(eg, "Esszimmer", senkrecht_2);
  const Apparat essen_taster = apparat(essen, vierfachtaster);
  const Taste esstisch = taste(essen_taster, unten_links, "Esstisch", {bedienen(essen_tisch, 70)});
  taste(essen_taster, unten_rechts, "Randlicht", {bedienen(essen_rand, 40)});
  const Taste gaeste = taste(essen_taster, oben_links, "Gäste",
                             {dimmen(essen_tisch, 75), dimmen(essen_rand, 30), dimmen(wohnen_wand, 45), aus(kueche_decke)});
  taste(essen_taster, oben_rechts, "Aus", {aus(essen_tisch), aus(essen_rand)});
  storentasten(apparat(essen, zweifachtaster), oben_links, oben_rechts, "Store", essen_store);

  const Raum wohnen = kombination(eg, "Wohnzimmer bei Terrasse", senkrecht_4);
  const Apparat wohnen_taster = apparat(wohnen, achtfachtaster);
  const Taste wohnen_decke_taste = taste(wohnen_taster, unten_links, "Decke", {bedienen(wohnen_decke)});
  taste(wohnen_taster, unten_rechts, "Wandleuchten", {bedienen(wohnen_wand, 60)});
  const Taste fernsehen = taste(wohnen_taster, oben_links, "Fernsehen", {aus(wohnen_decke), dimmen(wohnen_wand, 15, 6)});
  const Taste lesen = taste(wohnen_taster, oben_rechts, "Lesen", {dimmen(wohnen_decke, 65), dimmen(wohnen_wand, 50)});
  storentasten(wohnen_taster, neben + unten_links, neben + unten_rechts, "Süd", wohnen_sued);
  storentasten(wohnen_taster, neben + oben_links, neben + oben_rechts, "West", wohnen_west);
  heizung(apparat(wohnen, drehthermostat), ventil_wohnen, absenkung);
  const Apparat wohnen_terrasse = apparat(wohnen, vierfachtaster);
  taste(wohnen_terrasse, unten_links, "Terrasse", {um(terrasse_wand)});
  const Taste pergola = taste(wohnen_terrasse, unten_rechts, "Pergola", {bedienen(terrasse_pergola, 60)});
  storentasten(wohnen_terrasse, oben_links, oben_rechts, "Markise", markise);

  const Raum buero = kombination(eg, "Büro", senkrecht_2);
  taste(apparat(buero, einfachtaster), oben_links, "Decke", {um(buero_decke)});
  storentasten(apparat(buero, zweifachtaster), oben_links, oben_rechts, "Store", buero_store);

  const Raum wc = kombination(eg, "WC", einzeln);
  const Apparat wc_taster = apparat(wc, zweifachtaster);
  taste(wc_taster, oben_links, "Licht", {um(wc_licht), starte(lueftung)});
  taste(wc_taster, oben_rechts, "Lüfter", {starte(lueftung)});

  const Raum treppenhaus = kombination(eg, "Treppenhaus", senkrecht_2);
  taste(apparat(treppenhaus, einfachtaster), oben_links, "Treppe", {starte(treppe)});
  const Apparat treppe_melder = apparat(treppenhaus, bewegungsmelder);
  taste(treppe_melder, unten_links, "Jemand kommt", {starte(treppe)});

  // ---- upper floor ----------------------------------------------------------------------------------------------------
  const Raum korridor_raum = kombination(og, "Korridor", senkrecht_2);
  const Apparat korridor_taster = apparat(korridor_raum, vierfachtaster);
  taste(korridor_taster, unten_links, "Korridor", {um(korridor)});
  taste(korridor_taster, unten_rechts, "Treppe", {starte(treppe)});
  storentasten(korridor_taster, oben_links, oben_rechts, "Dachfenster", dachfenster);

  const Raum eltern = kombination(og, "Eltern beim Bett", senkrecht_3);
  const Apparat eltern_taster = apparat(eltern, vierfachtaster);
  taste(eltern_taster, unten_links, "Decke", {bedienen(eltern_decke, 70)});
  taste(eltern_taster, unten_rechts, "Bett", {bedienen(eltern_bett, 40)});
  const Taste gute_nacht = taste(eltern_taster, oben_links, "Gute Nacht", alle({alles_aus, alle_storen_ab}));
  const Taste panik = taste(eltern_taster, oben_rechts, "Panik",
                            {ein(vorplatz), ein(garten), ein(terrasse_wand), ein(entree_licht), ein(korridor),
                             dimmen(wohnen_decke, 100, 0), dimmen(eltern_decke, 100, 0)});
  storentasten(apparat(eltern, zweifachtaster), oben_links, oben_rechts, "Store", eltern_store);

  const Raum ankleide = kombination(og, "Ankleide", einzeln);
  taste(apparat(ankleide, einfachtaster), oben_links, "Licht", {um(ankleide_licht)});

  const Raum bad = kombination(og, "Bad Eltern", senkrecht_3);
  const Apparat bad_taster = apparat(bad, vierfachtaster);
  taste(bad_taster, unten_links, "Decke", {um(bad_decke)});
  taste(bad_taster, unten_rechts, "Spiegel", {um(bad_spiegel)});
  storentasten(bad_taster, oben_links, oben_rechts, "Store", bad_store);
  heizung(apparat(bad, drehthermostat), ventil_bad, absenkung);

  const Raum anna = kombination(og, "Zimmer Anna", senkrecht_2);
  taste(apparat(anna, einfachtaster), oben_links, "Decke", {bedienen(anna_decke)});
  storentasten(apparat(anna, zweifachtaster), oben_links, oben_rechts, "Store", anna_store);

  const Raum joerg = kombination(og, "Zimmer Jörg", senkrecht_2);
  taste(apparat(joerg, einfachtaster), oben_links, "Decke", {bedienen(joerg_decke)});
  storentasten(apparat(joerg, zweifachtaster), oben_links, oben_rechts, "Store", joerg_store);

  const Raum bad_kinder = kombination(og, "Bad Kinder", einzeln);
  const Apparat bad_kinder_taster = apparat(bad_kinder, zweifachtaster);
  taste(bad_kinder_taster, oben_links, "Decke", {um(dusche)});
  taste(bad_kinder_taster, oben_rechts, "Lüfter", {um(dusche_luefter)});

  const Raum gast = kombination(og, "Gästezimmer", senkrecht_3);
  taste(apparat(gast, einfachtaster), oben_links, "Decke", {um(gast_decke)});
  storentasten(apparat(gast, zweifachtaster), oben_links, oben_rechts, "Store", gast_store);
  heizung(apparat(gast, drehthermostat), ventil_gast, absenkung);

  // ---- basement -------------------------------------------------------------------------------------------------------
  const Raum gang_raum = kombination(ug, "Kellergang", einzeln);
  taste(apparat(gang_raum, einfachtaster), oben_links, "Licht", {starte(gang)});
  const Raum technik = kombination(ug, "Technikraum", einzeln);
  taste(apparat(technik, einfachtaster), oben_links, "Licht", {um(technik_licht)});
  const Raum waschen = kombination(ug, "Waschküche", einzeln);
  taste(apparat(waschen, einfachtaster), oben_links, "Licht", {um(wasch_licht)});
  const Raum hobby = kombination(ug, "Hobbyraum", einzeln);
  const Apparat hobby_taster = apparat(hobby, zweifachtaster);
  taste(hobby_taster, oben_links, "Decke", {um(hobby_decke)});
  const Taste kino = taste(hobby_taster, oben_rechts, "Kino", {aus(hobby_decke), dimmen(hobby_kino, 10, 9)});
  const Raum garage = kombination(ug, "Garage", waagrecht_2);
  const Apparat garage_taster = apparat(garage, zweifachtaster);
  taste(garage_taster, oben_links, "Licht", {um(garage_licht)});
  const Taste tor = taste(garage_taster, oben_rechts, "Tor", {impuls(garage_tor), ein(garage_licht)});

  // ---- outside, and what hangs in no room ------------------------------------------------------------------------------
  const Raum haustuere = kombination(aussen, "Haustür", einzeln);
  const Taste klingeln = taste(apparat(haustuere, klingeltaste), unten_links, "Klingel", {impuls(klingel), starte(ankunft)});
  const Raum terrasse = kombination(aussen, "Terrasse", einzeln);
  const Apparat terrasse_taster = apparat(terrasse, vierfachtaster);
  taste(terrasse_taster, unten_links, "Wand", {um(terrasse_wand)});
  taste(terrasse_taster, unten_rechts, "Pergola", {bedienen(terrasse_pergola, 60)});
  const Taste garten_taste = taste(terrasse_taster, oben_links, "Garten", {um(garten)});
  const Taste brunnen_taste = taste(terrasse_taster, oben_rechts, "Brunnen", {um(brunnen)});

  const Raum kontakte = kombination(ug, "ZAVin-0800 Fensterkontakte", diverse);
  const Apparat kontakt = apparat(kontakte, eingangsbaugruppe);
  taste(kontakt, 0, "Fenster Waschküche", {aus(dusche_luefter)});
  taste(kontakt, 1, "Tor oben", {ein(garage_licht)});
  taste_los(kontakt, 1, {aus(garage_licht)});

  const Raum fernbedienung = kombination(eg, "IR-Sender Wohnen", einzeln);
  const Apparat ir = apparat(fernbedienung, ir_handsender);
  taste(ir, 0, "Fernsehen", {aus(wohnen_decke), dimmen(wohnen_wand, 15, 6)});
  taste(ir, 1, "Heller", {dimmen(wohnen_wand, 80)});
  taste(ir, 2, "Storen auf", {auf(wohnen_sued), auf(wohnen_west)});
  taste(ir, 3, "Storen halt", {stop(wohnen_sued), stop(wohnen_west)});

  // ---- radio ----------------------------------------------------------------------------------------------------------
  empfaenger(0, "Technikraum");
  empfaenger(1, "Estrich");
  const Raum funk = kombination(og, "Funktaster", senkrecht_4);
  const Apparat funk_nachttisch = apparat(funk, funk_zweifach);
  taste(funk_nachttisch, 0, "Nachtlicht", {dimmen(eltern_bett, 15)});
  taste(funk_nachttisch, 1, "Alles aus", alles_aus);
  funksender(funk_nachttisch, "0021A4F7", "Nachttisch", 1);
  const Apparat funk_spielecke = apparat(funk, funk_vierfach);
  taste(funk_spielecke, 0, "Anna", {um(korridor)});
  taste(funk_spielecke, 1, "Jörg", {bedienen(joerg_decke, 50)});
  storentasten(funk_spielecke, 2, 3, "Store Jörg", joerg_store);
  funksender(funk_spielecke, "0021B01C", "Spielecke", 1);
  const Apparat funk_auto = apparat(funk, funk_handsender);
  taste(funk_auto, 0, "Garagentor", {impuls(garage_tor), starte(ankunft)});
  taste(funk_auto, 1, "Heimkommen", {starte(ankunft), ein(entree_licht)});
  funksender(funk_auto, "00319E52", "Auto", 0);
  const Apparat funk_kellertuer = apparat(funk, funk_magnetkontakt);
  taste(funk_kellertuer, 0, "Kellertür zu", {aus(keller_licht)});
  taste(funk_kellertuer, 1, "Kellertür auf", {starte(gang)});
  funksender(funk_kellertuer, "0050C3D8", "Kellertür", 0);

  // ---- clock 1: everyday life; clock 2: holidays ---------------------------------------------------------------------------
  const auto abends = bei_sonnenuntergang().spaeter("00.15.00").zwischen("16.45.00", "22.00.00");
  schaltzeit(1, werktags, "Wecken", um_zeit("06.20.00"), {auf(eltern_store), dimmen(eltern_decke, 30, 15)});
  schaltzeit(1, werktags, "Frühstück", um_zeit("06.30.00"), {ein(kueche_decke), dimmen(essen_tisch, 50), auf(kueche_store)});
  schaltzeit(1, werktags, "Heizen", um_zeit("06.00.00"), {aus(absenkung)});
  schaltzeit(1, wochenende, "Heizen", um_zeit("07.30.00"), {aus(absenkung)});
  schaltzeit(1, wochenende, "Storen auf", bei_sonnenaufgang().spaeter("00.30.00").zwischen("08.00.00", "09.30.00"), alle_storen_auf);
  schaltzeit(1, jeden_tag, "Absenken", um_zeit("22.00.00"), {ein(absenkung)});
  schaltzeit(1, jeden_tag, "Aussenlicht ein", abends, {ein(vorplatz), ein(garten)});
  schaltzeit(1, jeden_tag, "Aussenlicht aus", um_zeit("23.15.00"), {aus(vorplatz), aus(garten), aus(terrasse_wand)});
  schaltzeit(1, jeden_tag, "Storen zu", bei_sonnenuntergang().spaeter("00.40.00").zwischen("17.30.00", "21.45.00"),
             {ab(kueche_store), ab(essen_store), ab(wohnen_sued), ab(wohnen_west), ab(buero_store)});
  schaltzeit(1, jeden_tag, "Brunnen", um_zeit("09.00.00"), {ein(brunnen)});
  schaltzeit(1, jeden_tag, "Brunnen aus", um_zeit("20.30.00"), {aus(brunnen)});

  schaltzeit(2, jeden_tag, "Bewohnt: Storen", bei_sonnenaufgang().spaeter("00.20.00").zwischen("06.30.00", "08.30.00").zufaellig("00.20.00", "00.20.00"),
             alle_storen_auf);
  schaltzeit(2, jeden_tag, "Bewohnt: Küche", um_zeit("18.10.00").zufaellig("00.15.00", "00.25.00"), {ein(kueche_decke)});
  schaltzeit(2, jeden_tag, "Bewohnt: Wohnen", bei_sonnenuntergang().zufaellig("00.10.00", "00.30.00"), {dimmen(wohnen_decke, 60), aus(kueche_decke)});
  schaltzeit(2, jeden_tag, "Bewohnt: Nacht", um_zeit("22.40.00").zufaellig("00.30.00", "00.30.00"), alle({{aus(wohnen_decke)}, alle_storen_ab}));
  schaltzeit(2, jeden_tag, "Absenken", um_zeit("00.05.00"), {ein(absenkung)});
  schaltzeit(2, {Samstag}, "Markise einfahren", um_zeit("21.00.00"), {gesperrt(auf(markise))});
  schaltzeit(1, {Montag}, "Markise freigeben", um_zeit("08.00.00"), {entsperrt(auf(markise))});
  schaltzeit(1, {Sonntag}, "Weihnachtslicht", bei_sonnenuntergang().frueher("00.10.00"), {ein(weihnacht)});

  sequenz("01.01.2026", 1);
  sequenz("11.07.2026", 2);
  sequenz("01.08.2026", 1);

  // ---- weather ----------------------------------------------------------------------------------------------------------
  const Apparat station = apparat(kombination("Dach", "Wettersensor", diverse), wetterstation);
  wetterfunktion(station, {.name = "Windwache",
                           .bedingungen = {wind_ueber(12)},
                           .alle_noetig = false,
                           .freigabe = windwacht,
                           .warten = "00.00.10",
                           .warten_danach = "00.15.00",
                           .erfuellt = {auf(markise), auf(wohnen_west), auf(wohnen_sued)},
                           .nicht_erfuellt = {}});
  wetterfunktion(station, {.name = "Beschattung Süd",
                           .bedingungen = {sonne_sued_ueber(35), aussen_ueber(18)},
                           .alle_noetig = true,
                           .freigabe = beschattung,
                           .warten = "00.05.00",
                           .warten_danach = "00.20.00",
                           .erfuellt = {ab(wohnen_sued), ab(essen_store), ab(markise)},
                           .nicht_erfuellt = {auf(wohnen_sued), auf(essen_store)}});
  wetterfunktion(station, {.name = "Beschattung West",
                           .bedingungen = {sonne_west_ueber(40)},
                           .alle_noetig = false,
                           .freigabe = beschattung,
                           .warten = "00.05.00",
                           .warten_danach = "00.20.00",
                           .erfuellt = {ab(wohnen_west)},
                           .nicht_erfuellt = {auf(wohnen_west)}});
  wetterfunktion(station, {.name = "Regen",
                           .bedingungen = {regen()},
                           .alle_noetig = false,
                           .freigabe = windwacht,
                           .warten = "",
                           .warten_danach = "00.10.00",
                           .erfuellt = {ab(dachfenster), auf(markise)},
                           .nicht_erfuellt = {}});
  wetterfunktion(station, {.name = "Dämmerung",
                           .bedingungen = {licht_unter(20)},
                           .alle_noetig = false,
                           .freigabe = ferien,
                           .warten = "00.02.00",
                           .warten_danach = "00.02.00",
                           .erfuellt = {ein(vorplatz)},
                           .nicht_erfuellt = {aus(vorplatz)}});
  wetterfunktion(station, {.name = "Frostschutz",
                           .bedingungen = {aussen_unter(2)},
                           .alle_noetig = false,
                           .freigabe = brunnen,
                           .warten = "00.10.00",
                           .warten_danach = "",
                           .erfuellt = {aus(brunnen)},
                           .nicht_erfuellt = {}});

  // ---- phone app and cameras ----------------------------------------------------------------------------------------------
  for (const Taste t : {gehen, kommen, zentral_auf, zentral_ab, kochen, gaeste, fernsehen, lesen, gute_nacht, kino}) als_szene(t);
  for (const Taste t : {entree_taste, kueche_decke_taste, kueche_insel_taste, esstisch, wohnen_decke_taste, pergola}) {
    in_der_app(t, "Licht");
  }
  in_der_app(garten_taste, "Garten", Geraet::tablet);
  in_der_app(brunnen_taste, "Garten", Geraet::tablet);
  in_der_app(tor, "Tor", Geraet::telefon);
  mit_frage(tor, "Garagentor wirklich öffnen?", "Öffnen", "Abbrechen");
  in_der_app(panik, "Alarm");
  mit_frage(panik, "Panikbeleuchtung einschalten?", "Einschalten", "Nein");

  kamera({.titel = "Haustür",
          .ort = "Vorplatz",
          .ip = "192.168.1.60",
          .port = "80",
          .typ = "Axis",
          .taste = klingeln,
          .tastentext = "Licht"});
  kamera({.titel = "Garten",
          .ort = "Terrasse",
          .ip = "192.168.1.61",
          .port = "80",
          .typ = "Mobotix",
          .taste = garten_taste,
          .tastentext = "Gartenlicht"});

}

}  // namespace

int main(int argc, char** argv) { return erzaehlen(argc, argv, haus_mueller); }
