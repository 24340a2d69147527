// Where the controls of a form sit, as data: a tree that a front end turns into its own layout.
//
//     Anordnung Dimmermode::anordnung() {
//       return Spalte(TabStrip1, Gruppe("Definition", Raster(3, Lnr, Check1, Check2)), Knopfzeile(OK,
//       Cancel));
//     }
#pragma once

#include <algorithm>
#include <array>
#include <string>
#include <utility>
#include <vector>

#include "form/steuerelement.h"

namespace zav {

struct Anordnung {
  enum class Art {
    Element,     // one control
    Zeile,       // side by side
    Spalte,      // one below the other
    Gruppe,      // a titled column; with `element` the Rahmen that carries title, visibility and enabling
    Raster,      // row by row in `spalten` columns
    Reiter,      // one child a page, one more stands beside the tabs; `element` is the Auswahl whose position
                 // shows the page
    Knopfzeile,  // the dialog's buttons, at the right end
    Feder,       // takes the space that is left
    Menue,       // a menu or submenu of items, title in `titel`
    Kontextmenue,  // a popup menu, title in `titel`
    Besonders,     // a painted widget of the front end, called `titel`, that shows and serves the children
    Leer,          // an empty cell of a grid; a row of them is a gap
  };

  Art art = Art::Leer;
  std::string titel{};
  Steuerelement* element = nullptr;
  int spalten = 0;
  bool platz_halten =
      false;  // of a grid: hidden controls keep their place, so that nothing moves when they come
  std::vector<Anordnung> kinder{};

  Anordnung() = default;
  explicit Anordnung(Art a) : art(a) {}
  Anordnung(Steuerelement& e) : art(Art::Element), element(&e) {}  // NOLINT: a control is a layout
};

// All members of an array in order, as children of the surrounding node.
struct Anordnungsfolge {
  std::vector<Anordnung> teile;
};
template <class E, std::size_t N>
Anordnungsfolge Alle(std::array<E, N>& feld) {
  Anordnungsfolge f;
  for (E& e : feld) f.teile.emplace_back(e);
  return f;
}
// The arrays member by member: first of each, second of each ... For a grid with one array a column.
template <class... Felder>
Anordnungsfolge Zeilenweise(Felder&... felder) {
  Anordnungsfolge f;
  const std::size_t n = std::min({felder.size()...});
  for (std::size_t i = 0; i < n; ++i) (f.teile.emplace_back(felder[i]), ...);
  return f;
}

namespace anordnung_intern {
inline void anfuegen(Anordnung& a, Anordnung kind) { a.kinder.push_back(std::move(kind)); }
inline void anfuegen(Anordnung& a, Anordnungsfolge f) {
  for (Anordnung& t : f.teile) a.kinder.push_back(std::move(t));
}
inline void anfuegen(Anordnung& a, Steuerelement& e) { a.kinder.emplace_back(e); }
template <class... Kinder>
Anordnung knoten(Anordnung a, Kinder&&... kinder) {
  (anfuegen(a, std::forward<Kinder>(kinder)), ...);
  return a;
}
}  // namespace anordnung_intern

template <class... K>
Anordnung Zeile(K&&... k) {
  return anordnung_intern::knoten(Anordnung(Anordnung::Art::Zeile), std::forward<K>(k)...);
}
template <class... K>
Anordnung Spalte(K&&... k) {
  return anordnung_intern::knoten(Anordnung(Anordnung::Art::Spalte), std::forward<K>(k)...);
}
template <class... K>
Anordnung Knopfzeile(K&&... k) {
  return anordnung_intern::knoten(Anordnung(Anordnung::Art::Knopfzeile), std::forward<K>(k)...);
}
template <class... K>
Anordnung Gruppe(std::string titel, K&&... k) {
  Anordnung a(Anordnung::Art::Gruppe);
  a.titel = std::move(titel);
  return anordnung_intern::knoten(std::move(a), std::forward<K>(k)...);
}
template <class... K>
Anordnung Gruppe(Rahmen& rahmen, K&&... k) {
  Anordnung a(Anordnung::Art::Gruppe);
  a.element = &rahmen;
  return anordnung_intern::knoten(std::move(a), std::forward<K>(k)...);
}
template <class... K>
Anordnung Raster(int spalten, K&&... k) {
  Anordnung a(Anordnung::Art::Raster);
  a.spalten = spalten;
  return anordnung_intern::knoten(std::move(a), std::forward<K>(k)...);
}
inline Anordnung Platz_haltend(Anordnung raster) {
  raster.platz_halten = true;
  return raster;
}
template <class... K>
Anordnung Reiter(Auswahl& reiter, K&&... seiten) {
  Anordnung a(Anordnung::Art::Reiter);
  a.element = &reiter;
  return anordnung_intern::knoten(std::move(a), std::forward<K>(seiten)...);
}
template <class... K>
Anordnung Menue(std::string titel, K&&... k) {
  Anordnung a(Anordnung::Art::Menue);
  a.titel = std::move(titel);
  return anordnung_intern::knoten(std::move(a), std::forward<K>(k)...);
}
// A popup menu of its own, opened by a control's right button.
template <class... K>
Anordnung Kontextmenue(std::string titel, K&&... k) {
  Anordnung a(Anordnung::Art::Kontextmenue);
  a.titel = std::move(titel);
  return anordnung_intern::knoten(std::move(a), std::forward<K>(k)...);
}
template <class... K>
Anordnung Besonders(std::string name, K&&... k) {
  Anordnung a(Anordnung::Art::Besonders);
  a.titel = std::move(name);
  return anordnung_intern::knoten(std::move(a), std::forward<K>(k)...);
}
inline Anordnung Feder() { return Anordnung(Anordnung::Art::Feder); }
inline Anordnung Leer() { return Anordnung{}; }

// Every control that the tree names, in its order (a frame or a tab strip before what it holds).
std::vector<Steuerelement*> Platzierte(const Anordnung& a);

}  // namespace zav
