#include "zavlink/renderer.h"

#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QStackedWidget>
#include <QVBoxLayout>
#include <algorithm>
#include <span>
#include <utility>

#include "zavlink/farben.h"
#include "zavlink/namensgeber.h"
#include "zavlink/qt_text.h"
#include "zavlink/spaltenlauf.h"
#include "zavlink/textfelder.h"
#include "zavlink/wahlfelder.h"

namespace zav::fenster {

namespace {

enum class Richtung { waagrecht, senkrecht };

// Controls that carry their caption beside them and not in themselves.
bool Hat_beschriftung(const Anordnung& a) {
  if (a.art != Anordnung::Art::Element || a.element->titel->empty()) return false;
  switch (a.element->art) {
    case Art::Textfeld:
    case Art::Schieber:
    case Art::Balken:
    case Art::Kalender: return true;
    case Art::Auswahl: {
      const auto form = static_cast<const Auswahl&>(*a.element).form;
      return form == Auswahl::Form::Klappliste || form == Auswahl::Form::Liste ||
             form == Auswahl::Form::Optionen;
    }
    default: return false;
  }
}

bool Element_waechst(const Steuerelement& e, Richtung r) {
  switch (e.art) {
    case Art::Baum: return true;
    case Art::Textfeld: {
      const auto& t = static_cast<const Textfeld&>(e);
      return r == Richtung::senkrecht ? t.mehrzeilig : Textfeld_waechst(t);
    }
    case Art::Auswahl: {
      const auto& a = static_cast<const Auswahl&>(e);
      if (a.form == Auswahl::Form::Raster || (a.form == Auswahl::Form::Liste && r == Richtung::senkrecht))
        return true;
      return r == Richtung::waagrecht && ((a.form == Auswahl::Form::Leiste && a.anzahl() >= leiste_breit) ||
                                          a.form == Auswahl::Form::Reiter);
    }
    case Art::Schieber:
    case Art::Balken: return r == Richtung::waagrecht;
    default: return false;
  }
}

// What takes the space that is left: trees, texts of several lines, maps and painted areas.
bool Waechst(const Anordnung& a, Richtung r) {
  if (a.art == Anordnung::Art::Element) return Element_waechst(*a.element, r);
  if (a.art == Anordnung::Art::Besonders) return true;
  if (a.art == Anordnung::Art::Knopfzeile) return r == Richtung::waagrecht;
  return std::ranges::any_of(a.kinder, [r](const Anordnung& k) { return Waechst(k, r); });
}

// A tree keeps its width: what it chooses takes the room beside it.
bool Hat_baum(const Anordnung& a) {
  if (a.art == Anordnung::Art::Element) return a.element->art == Art::Baum;
  return std::ranges::any_of(a.kinder, Hat_baum);
}

bool Ist_menue(const Anordnung& a) {
  return a.art == Anordnung::Art::Menue || a.art == Anordnung::Art::Kontextmenue;
}

// Higher than one line: what stands beside it is aligned to its top.
bool Ist_hoch(const Anordnung& a) {
  using A = Anordnung::Art;
  if (a.art == A::Element)
    return Element_waechst(*a.element, Richtung::senkrecht) || a.element->art == Art::Kalender;
  if (a.art == A::Zeile) return std::ranges::any_of(a.kinder, Ist_hoch);
  return a.art == A::Spalte || a.art == A::Gruppe || a.art == A::Raster || a.art == A::Reiter ||
         a.art == A::Besonders;
}

bool Ist_gruppe(const Anordnung& a) {
  return a.art == Anordnung::Art::Gruppe ||
         (a.art == Anordnung::Art::Zeile && std::ranges::any_of(a.kinder, Ist_gruppe));
}

// A column of commands with their signs: shown as a flat list.
bool Ist_befehlsliste(const std::vector<Anordnung>& kinder) {
  return !kinder.empty() && std::ranges::all_of(kinder, [](const Anordnung& k) {
    if (k.art != Anordnung::Art::Element || k.element->art != Art::Taste) return false;
    const std::string& bild = static_cast<const Taste*>(k.element)->bild;
    return !bild.empty() && !bild.starts_with("layout-");
  });
}

// A row that begins with a check box or options, and goes on with the field that they switch on.
bool Ist_schaltzeile(const Anordnung& a) {
  const auto ist_element = [](const Anordnung& k) { return k.art == Anordnung::Art::Element; };
  if (a.kinder.size() < 2 || !std::ranges::all_of(std::span(a.kinder).first(2), ist_element)) return false;
  const Steuerelement& schalter = *a.kinder[0].element;
  const bool optionen = schalter.art == Art::Auswahl && schalter.titel->empty() &&
                        static_cast<const Auswahl&>(schalter).form == Auswahl::Form::Optionen;
  return (schalter.art == Art::Kaestchen || optionen) && a.kinder[1].element->art == Art::Textfeld;
}

// A part of the window: a widget or a layout.
struct Teil {
  QWidget* widget = nullptr;
  QLayout* layout = nullptr;
  explicit operator bool() const { return widget != nullptr || layout != nullptr; }
};

void Einsetzen(QBoxLayout& l, Teil t, int dehnung, Qt::Alignment lage = {}) {
  if (t.widget != nullptr) l.addWidget(t.widget, dehnung, lage);
  if (t.layout != nullptr) l.addLayout(t.layout, dehnung);
}
void Einsetzen(QGridLayout& l, Teil t, int zeile, int spalte, Qt::Alignment lage = {}) {
  if (t.widget != nullptr) l.addWidget(t.widget, zeile, spalte, lage);
  if (t.layout != nullptr) l.addLayout(t.layout, zeile, spalte);
}

class Baumeister {
 public:
  Baumeister(Auffrischer& auf, Gebautes& ergebnis) : auf_(auf), ergebnis_(ergebnis) {}

  // A whole tree as one widget.
  QWidget* Als_widget(const Anordnung& a, QWidget* eltern) {
    using A = Anordnung::Art;
    auto* const w = new QWidget(eltern);
    // A grid alone would spread its rows over the whole height.
    if (a.art == A::Spalte) w->setLayout(Spalte_bauen(a.kinder, w));
    else if (a.art == A::Knopfzeile) w->setLayout(Knopfzeile_bauen(a, w));
    else w->setLayout(Spalte_bauen({a}, w));
    return w;
  }

  Teil Bau(const Anordnung& a, QWidget* eltern) {
    switch (a.art) {
      case Anordnung::Art::Element: return {Element(*a.element, eltern)};
      case Anordnung::Art::Zeile: return {nullptr, Zeile_bauen(a, eltern)};
      case Anordnung::Art::Spalte: return {nullptr, Spalte_bauen(a.kinder, eltern)};
      case Anordnung::Art::Knopfzeile: return {nullptr, Knopfzeile_bauen(a, eltern)};
      case Anordnung::Art::Gruppe: return {Gruppe_bauen(a, eltern)};
      case Anordnung::Art::Raster: return {nullptr, Raster_bauen(a, eltern)};
      case Anordnung::Art::Reiter: return {Reiter_bauen(a, eltern)};
      case Anordnung::Art::Besonders: return {Besonders_bauen(a, eltern)};
      case Anordnung::Art::Menue: ergebnis_.menues.push_back(Menue_bauen(a, eltern)); break;
      case Anordnung::Art::Kontextmenue: ergebnis_.kontextmenues[a.titel] = Menue_bauen(a, eltern); break;
      case Anordnung::Art::Feder:
      case Anordnung::Art::Leer: break;
    }
    return {};
  }

 private:
  QWidget* Element(Steuerelement& e, QWidget* eltern) {
    QWidget* const w = Bauen(e, auf_, eltern);
    ergebnis_.widgets[&e] = w;
    return w;
  }

  // The caption beside a control: its mnemonic leads to the control, and it hides and dims with it.
  QLabel* Beschriftung(Steuerelement& e, QWidget* feld, QWidget* eltern) {
    auto* const schild = new QLabel(eltern);
    schild->setTextFormat(Qt::PlainText);
    schild->setBuddy(feld);
    schild->setContentsMargins(0, 0, 2, 0);  // an underlined letter breaks the kerning that was measured
    auf_.binden(e, [&e, schild] {
      schild->setText(Q(*e.titel));
      schild->setVisible(e.sichtbar);
      schild->setEnabled(e.frei);
    });
    return schild;
  }

  template <class L>
  static L* Ohne_rand(L* layout) {
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(raster);
    return layout;
  }

  QHBoxLayout* Zeile_bauen(const Anordnung& a, QWidget* eltern) {
    Linie* const linie = linie_;
    const Eigene_linie fuer_sich(*this);
    auto* const zeile = Ohne_rand(new QHBoxLayout);
    const bool hoch = std::ranges::any_of(a.kinder, Ist_hoch);
    if (hoch) zeile->setSpacing(gruppenabstand);
    bool gefuellt = false;
    for (const Anordnung& k : a.kinder) {
      if (k.art == Anordnung::Art::Feder) {
        zeile->addStretch(1);
        gefuellt = true;
        continue;
      }
      const bool waechst = Waechst(k, Richtung::waagrecht);
      gefuellt = gefuellt || waechst;
      const bool oben = hoch && k.art == Anordnung::Art::Element && !Waechst(k, Richtung::senkrecht);
      const Qt::Alignment lage = oben ? Qt::AlignTop : Qt::Alignment{};
      const bool beschriftet = Hat_beschriftung(k);
      // The caption stands before its field, but needs it to lead to.
      const int stelle = zeile->count();
      const Teil t = Bau(k, eltern);
      if (!t) continue;
      if (beschriftet) zeile->insertWidget(stelle, Beschriftung(*k.element, t.widget, eltern), 0, lage);
      Einsetzen(*zeile, t, waechst && !Hat_baum(k) ? 1 : 0, lage);
    }
    if (!gefuellt) zeile->addStretch(1);
    if (linie != nullptr && Ist_schaltzeile(a)) linie->schalter.push_back(zeile->itemAt(0)->widget());
    return zeile;
  }

  QVBoxLayout* Spalte_bauen(const std::vector<Anordnung>& kinder, QWidget* eltern) {
    auto* const spalte = Ohne_rand(new QVBoxLayout);
    const bool befehle = Ist_befehlsliste(kinder);
    if (befehle) spalte->setSpacing(2);
    const bool eigene_linie = linie_ == nullptr;
    Linie linie;
    if (eigene_linie) linie_ = &linie;
    QGridLayout* felder = nullptr;  // captions of neighbouring fields stand in line
    bool gefuellt = false;
    for (const Anordnung& k : kinder) {
      const bool waechst = Waechst(k, Richtung::senkrecht);
      if (k.art == Anordnung::Art::Feder) {
        spalte->addStretch(1);
        gefuellt = true;
        felder = nullptr;
        continue;
      }
      if (Ist_menue(k)) {
        Bau(k, eltern);
        continue;
      }
      // The dialog's buttons stay at the bottom.
      if (k.art == Anordnung::Art::Knopfzeile) {
        if (!gefuellt) spalte->addStretch(1);
        gefuellt = true;
        spalte->addSpacing(raster);
      }
      gefuellt = gefuellt || waechst;
      if (Ist_gruppe(k) && spalte->count() > 0) spalte->addSpacing(gruppenabstand - spalte->spacing());
      if (Hat_beschriftung(k) && waechst) {
        // A large field has its caption above it.
        QWidget* const feld = Element(*k.element, eltern);
        spalte->addWidget(Beschriftung(*k.element, feld, eltern));
        spalte->addWidget(feld, 1);
        felder = nullptr;
        continue;
      }
      if (Hat_beschriftung(k)) {
        if (felder == nullptr) {
          felder = Ohne_rand(new QGridLayout);
          felder->setVerticalSpacing(raster / 2);
          felder->setColumnStretch(1, 1);
          spalte->addLayout(felder);
          linie_->felder.push_back(felder);
        }
        const int zeile = felder->rowCount();
        QWidget* const feld = Element(*k.element, eltern);
        felder->addWidget(Beschriftung(*k.element, feld, eltern), zeile, 0);
        felder->addWidget(feld, zeile, 1, Waechst(k, Richtung::waagrecht) ? Qt::Alignment{} : Qt::AlignLeft);
        continue;
      }
      felder = nullptr;
      const Teil t = Bau(k, eltern);
      if (befehle) {
        for (const char* merkmal : {"links", "flach"}) t.widget->setProperty(merkmal, true);
      }
      const bool knopf =
          !befehle && k.art == Anordnung::Art::Element && k.element->art == Art::Taste && kinder.size() < 4;
      Einsetzen(*spalte, t, waechst ? 1 : 0, knopf ? Qt::AlignLeft : Qt::Alignment{});
    }
    if (!gefuellt) spalte->addStretch(1);
    if (eigene_linie) {
      In_linie(linie);
      linie_ = nullptr;
    }
    return spalte;
  }

  // The fields of groups that stand below each other begin at the same place: those with captions, and those
  // that are switched on.
  struct Linie {
    std::vector<QGridLayout*> felder;
    std::vector<QWidget*> schalter;
  };
  static void In_linie(const Linie& linie) {
    int breite = 0;
    for (const QGridLayout* g : linie.felder) {
      for (int z = 0; z < g->rowCount(); ++z) {
        if (const QLayoutItem* const schild = g->itemAtPosition(z, 0))
          breite = std::max(breite, schild->sizeHint().width());
      }
    }
    for (QGridLayout* g : linie.felder) g->setColumnMinimumWidth(0, breite);
    breite = 0;
    for (const QWidget* s : linie.schalter) breite = std::max(breite, s->sizeHint().width());
    for (QWidget* s : linie.schalter) s->setMinimumWidth(breite);
  }

  QHBoxLayout* Knopfzeile_bauen(const Anordnung& a, QWidget* eltern) {
    auto* const zeile = Ohne_rand(new QHBoxLayout);
    const auto ist_feder = [](const Anordnung& k) { return k.art == Anordnung::Art::Feder; };
    if (std::ranges::none_of(a.kinder, ist_feder)) zeile->addStretch(1);
    for (const Anordnung& k : a.kinder) {
      if (ist_feder(k)) zeile->addStretch(1);
      else Einsetzen(*zeile, Bau(k, eltern), 0);
    }
    return zeile;
  }

  QWidget* Gruppe_bauen(const Anordnung& a, QWidget* eltern) {
    auto* const w = new QWidget(eltern);
    auto* const spalte = Ohne_rand(new QVBoxLayout(w));
    spalte->setSpacing(raster / 2 + 2);
    auto* const kopf = new QWidget(w);
    auto* const kopfzeile = Ohne_rand(new QHBoxLayout(kopf));
    auto* const titel = new QLabel(kopf);
    titel->setTextFormat(Qt::PlainText);
    QFont schrift = titel->font();
    schrift.setBold(true);
    schrift.setPointSizeF(schrift.pointSizeF() * 0.92);
    titel->setFont(schrift);
    auto* const linie = new QFrame(kopf);
    linie->setFrameShape(QFrame::HLine);
    linie->setForegroundRole(QPalette::Midlight);
    linie->setFrameShadow(QFrame::Plain);
    kopfzeile->addWidget(titel);
    kopfzeile->addWidget(linie, 1);
    spalte->addWidget(kopf);
    QWidget* const inhalt = new QWidget(w);
    inhalt->setLayout(Spalte_bauen(a.kinder, inhalt));
    spalte->addWidget(inhalt, 1);
    if (a.element == nullptr) {
      w->setAccessibleName(Q(a.titel));
      titel->setText(Ohne_kuerzel(Q(a.titel)));
      return w;
    }
    Steuerelement& e = *a.element;
    ergebnis_.widgets[&e] = w;
    auf_.binden(e, [&e, w, kopf, titel, inhalt] {
      Gemeinsames(*w, e);
      w->setEnabled(true);
      inhalt->setEnabled(e.frei);
      titel->setText(Ohne_kuerzel(Q(*e.titel)));
      kopf->setVisible(!e.titel->empty());
      Einfaerben(*titel, e.farbe);
    });
    return w;
  }

  static bool Ist_leere_zeile(const Anordnung& a, std::size_t beginn) {
    const auto zellen = std::span(a.kinder).subspan(beginn);
    return std::ranges::all_of(zellen.first(std::min(zellen.size(), static_cast<std::size_t>(a.spalten))),
                               [](const Anordnung& k) { return k.art == Anordnung::Art::Leer; });
  }
  static void Platz_halten(QWidget& w) {
    QSizePolicy regel = w.sizePolicy();
    regel.setRetainSizeWhenHidden(true);
    w.setSizePolicy(regel);
  }

  QGridLayout* Raster_bauen(const Anordnung& a, QWidget* eltern) {
    const Eigene_linie fuer_sich(*this);
    auto* const gitter = Ohne_rand(new QGridLayout);
    gitter->setVerticalSpacing(static_cast<int>(a.kinder.size()) >= 16 * a.spalten ? 2 : raster / 2);
    // Columns with captions take two columns of the grid.
    const auto spalten = static_cast<std::size_t>(a.spalten);
    std::vector<bool> beschriftet(spalten, false), waechst(spalten, false);
    for (std::size_t i = 0; i < a.kinder.size(); ++i) {
      beschriftet[i % spalten] = beschriftet[i % spalten] || Hat_beschriftung(a.kinder[i]);
      waechst[i % spalten] = waechst[i % spalten] || Waechst(a.kinder[i], Richtung::waagrecht);
    }
    std::vector<int> ort(spalten + 1, 0);
    for (std::size_t s = 0; s < spalten; ++s) {
      if (beschriftet[s]) ++ort[s];
      ort[s + 1] = ort[s] + 1;
      if (waechst[s]) gitter->setColumnStretch(ort[s], 1);
    }
    std::vector<Spaltenlauf*> laeufe;
    for (std::size_t s = 0; s < spalten; ++s) laeufe.push_back(new Spaltenlauf(eltern));
    for (std::size_t i = 0; i < a.kinder.size(); ++i) {
      const Anordnung& k = a.kinder[i];
      const int zeile = static_cast<int>(i / spalten);
      if (i % spalten == 0 && Ist_leere_zeile(a, i)) gitter->setRowMinimumHeight(zeile, raster);
      const int spalte = ort[i % spalten];
      const bool frei = Waechst(k, Richtung::waagrecht) || k.art != Anordnung::Art::Element;
      const Teil t = Bau(k, eltern);
      if (!t) continue;
      if (t.widget != nullptr) laeufe.at(i % spalten)->anfuegen(t.widget);
      if (a.platz_halten && t.widget != nullptr) Platz_halten(*t.widget);
      const bool fuellt = k.art == Anordnung::Art::Element &&
                          (k.element->art == Art::Schild || k.element->art == Art::Taste ||
                           (k.element->art == Art::Auswahl &&
                            static_cast<const Auswahl&>(*k.element).form == Auswahl::Form::Klappliste));
      Einsetzen(*gitter, t, zeile, spalte, frei || fuellt ? Qt::Alignment{} : Qt::AlignLeft);
      if (Hat_beschriftung(k)) {
        gitter->addWidget(Beschriftung(*k.element, t.widget, eltern), zeile, spalte - 1);
      }
      if (Waechst(k, Richtung::senkrecht)) gitter->setRowStretch(zeile, 1);
    }
    if (std::ranges::none_of(waechst, [](bool b) { return b; })) gitter->setColumnStretch(ort[spalten], 1);
    return gitter;
  }

  QWidget* Reiter_bauen(const Anordnung& a, QWidget* eltern) {
    auto& wahl = static_cast<Auswahl&>(*a.element);
    if (a.kinder.empty()) return Element(wahl, eltern);
    auto* const w = new QWidget(eltern);
    auto* const spalte = Ohne_rand(new QVBoxLayout(w));
    const auto seiten =
        std::span(a.kinder).first(std::min(a.kinder.size(), static_cast<std::size_t>(wahl.anzahl())));
    auto* const kopf = new QHBoxLayout;
    kopf->addWidget(Element(wahl, w), 1);
    for (const Anordnung& k : std::span(a.kinder).subspan(seiten.size())) {
      const Teil daneben = Bau(k, w);
      Einsetzen(*kopf, daneben, 0, Qt::AlignVCenter);
      if (daneben.layout != nullptr) kopf->setAlignment(daneben.layout, Qt::AlignVCenter);
    }
    spalte->addLayout(kopf);
    auto* const stapel = new QStackedWidget(w);
    for (const Anordnung& k : seiten) stapel->addWidget(Als_widget(k, stapel));
    spalte->addWidget(stapel, 1);
    auf_.binden(wahl, [&wahl, stapel] {
      if (wahl.position() >= 0 && wahl.position() < stapel->count()) stapel->setCurrentIndex(wahl.position());
    });
    return w;
  }

  QWidget* Besonders_bauen(const Anordnung& a, QWidget* eltern) {
    if (const Besonderer_bau bau = Besonderer_bau_von(a.titel)) return bau(a, auf_, eltern, ergebnis_);
    auto* const w = new QWidget(eltern);
    w->setLayout(Spalte_bauen(a.kinder, w));
    return w;
  }

  QMenu* Menue_bauen(const Anordnung& a, QWidget* eltern) {
    auto* const menue = new QMenu(Q(a.titel), eltern);
    menue->setToolTipsVisible(true);
    for (const Anordnung& k : a.kinder) {
      if (k.art == Anordnung::Art::Menue) {
        menue->addMenu(Menue_bauen(k, menue));
      } else if (k.art == Anordnung::Art::Feder) {
        menue->addSeparator();
      } else if (k.art == Anordnung::Art::Element) {
        menue->addAction(Aktion_bauen(*k.element, auf_, menue));
      }
    }
    return menue;
  }

  // What stands side by side has its own lines of captions.
  class Eigene_linie {
   public:
    explicit Eigene_linie(Baumeister& b) : b_(b), vorher_(std::exchange(b.linie_, nullptr)) {}
    ~Eigene_linie() { b_.linie_ = vorher_; }
    Eigene_linie(const Eigene_linie&) = delete;
    Eigene_linie& operator=(const Eigene_linie&) = delete;

   private:
    Baumeister& b_;
    Linie* vorher_;
  };

  Auffrischer& auf_;
  Gebautes& ergebnis_;
  Linie* linie_ = nullptr;  // of the column that is being built
};

// `Command15` of `Command15(3)`.
std::string Stamm(const std::string& name) { return name.substr(0, name.find('(')); }

// Right button and menu key on the controls that have a popup menu or listen for it.
void Kontextmenues_anhaengen(Auffrischer& auf, Gebautes& g) {
  for (const auto& [element, widget] : g.widgets) {
    if (widget->property("eigenes_menue").toBool()) continue;  // several controls in one painted widget
    auto* const e = const_cast<Steuerelement*>(element);       // the map holds the form's own controls
    const bool hoert = e->art == Art::Taste && static_cast<Taste*>(e)->wenn_rechts_gedrueckt != nullptr;
    if (!hoert && !g.kontextmenues.contains(Stamm(e->name()))) continue;
    widget->setContextMenuPolicy(Qt::CustomContextMenu);
    QObject::connect(
        widget, &QWidget::customContextMenuRequested, widget,
        [e, w = widget, &g, &auf](QPoint p) { Kontextmenue_zeigen(*e, g, auf, w->mapToGlobal(p)); });
  }
}

}  // namespace

void Kontextmenue_zeigen(Steuerelement& e, const Gebautes& g, Auffrischer& auf, QPoint stelle) {
  if (!e.frei || !e.sichtbar) return;
  if (e.art == Art::Taste && static_cast<Taste&>(e).wenn_rechts_gedrueckt) {
    Handeln([&e] { static_cast<Taste&>(e).rechts_druecken(); });
  }
  const auto menue = g.kontextmenues.find(Stamm(e.name()));
  if (menue == g.kontextmenues.end()) return;
  auf.nachholen();
  menue->second->popup(stelle);
}

QWidget* Teil_bauen(const Anordnung& a, Auffrischer& auf, QWidget* eltern, Gebautes& ergebnis) {
  return Baumeister(auf, ergebnis).Als_widget(a, eltern);
}

void Aufbauen(const Anordnung& a, Auffrischer& auf, QWidget* eltern, Gebautes& ergebnis,
              const QString& titel) {
  Baumeister meister(auf, ergebnis);
  // The dialog's buttons stay outside of what may have to scroll.
  Anordnung inhalt = a;
  Anordnung knoepfe;
  if (a.art == Anordnung::Art::Spalte) {
    const auto zeile = std::ranges::find(inhalt.kinder, Anordnung::Art::Knopfzeile, &Anordnung::art);
    if (zeile != inhalt.kinder.end()) {
      knoepfe = *zeile;
      inhalt.kinder.erase(zeile);
    }
  }
  ergebnis.inhalt = meister.Als_widget(inhalt, eltern);
  if (knoepfe.art == Anordnung::Art::Knopfzeile) ergebnis.knopfzeile = meister.Als_widget(knoepfe, eltern);
  Kontextmenues_anhaengen(auf, ergebnis);
  Namen_geben(a, auf, ergebnis, titel);
}

}  // namespace zav::fenster
