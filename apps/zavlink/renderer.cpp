#include "zavlink/renderer.h"

#include <QFormLayout>
#include <QGridLayout>
#include <QLabel>
#include <QScrollArea>
#include <QStackedWidget>
#include <QTabBar>
#include <QVBoxLayout>

#include "zavlink/farben.h"
#include "zavlink/qt_text.h"

namespace zav::fenster {

namespace {

std::map<std::string, Besonderer_bau>& Besondere() {
  static std::map<std::string, Besonderer_bau> tabelle;
  return tabelle;
}

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
      return form == Auswahl::Form::Klappliste || form == Auswahl::Form::Liste;
    }
    default: return false;
  }
}

class Baumeister {
 public:
  Baumeister(Auffrischer& auf, Gebautes& ergebnis) : auf_(auf), ergebnis_(ergebnis) {}

  // The widget of a node; nullptr for what has none in the layout (menus).
  QWidget* Bau(const Anordnung& a, QWidget* eltern) {
    switch (a.art) {
      case Anordnung::Art::Element: return Element(*a.element, eltern);
      case Anordnung::Art::Zeile: return Reihe(a, eltern, new QHBoxLayout);
      case Anordnung::Art::Spalte: return Reihe(a, eltern, new QVBoxLayout);
      case Anordnung::Art::Knopfzeile: return Knopfzeile_bauen(a, eltern);
      case Anordnung::Art::Gruppe: return Gruppe_bauen(a, eltern);
      case Anordnung::Art::Raster: return Raster_bauen(a, eltern);
      case Anordnung::Art::Reiter: return Reiter_bauen(a, eltern);
      case Anordnung::Art::Besonders: return Besonders_bauen(a, eltern);
      case Anordnung::Art::Menue: ergebnis_.menues.push_back(Menue_bauen(a, eltern)); return nullptr;
      case Anordnung::Art::Kontextmenue: ergebnis_.kontextmenues[a.titel] = Menue_bauen(a, eltern); return nullptr;
      case Anordnung::Art::Feder:
      case Anordnung::Art::Leer: break;
    }
    return nullptr;
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
    schild->setBuddy(feld);
    const auto eigenes = e.beobachter;
    const auto nachfuehren = [&e, schild] {
      schild->setText(Q(*e.titel));
      schild->setVisible(e.sichtbar);
      schild->setEnabled(e.frei);
    };
    e.beobachter = [eigenes, nachfuehren] {
      if (eigenes) eigenes();
      nachfuehren();
    };
    nachfuehren();
    return schild;
  }

  template <class L>
  static L* Ausrichten(L* layout) {
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(raster);
    return layout;
  }

  QWidget* Reihe(const Anordnung& a, QWidget* eltern, QBoxLayout* layout) {
    auto* const w = new QWidget(eltern);
    w->setLayout(Ausrichten(layout));
    const bool spalte = a.art != Anordnung::Art::Zeile;
    QFormLayout* form = nullptr;  // captions of neighbouring fields stand in line
    for (const Anordnung& k : a.kinder) {
      if (k.art == Anordnung::Art::Feder) {
        layout->addStretch(1);
        form = nullptr;
        continue;
      }
      QWidget* const kind = Bau(k, w);
      if (kind == nullptr) continue;
      if (Hat_beschriftung(k)) {
        QLabel* const schild = Beschriftung(*k.element, kind, w);
        if (spalte) {
          if (form == nullptr) {
            form = new QFormLayout;
            form->setContentsMargins(0, 0, 0, 0);
            form->setSpacing(raster);
            layout->addLayout(form);
          }
          form->addRow(schild, kind);
        } else {
          layout->addWidget(schild);
          layout->addWidget(kind, 1);
        }
        continue;
      }
      form = nullptr;
      if (spalte && k.art == Anordnung::Art::Gruppe && layout->count() > 0) layout->addSpacing(gruppenabstand - raster);
      layout->addWidget(kind, Dehnung(k, spalte));
    }
    return w;
  }

  // What takes the free space: trees, texts of several lines, maps and painted areas.
  static int Dehnung(const Anordnung& a, bool senkrecht) {
    if (a.art == Anordnung::Art::Besonders || a.art == Anordnung::Art::Reiter) return 1;
    if (a.art == Anordnung::Art::Element) {
      switch (a.element->art) {
        case Art::Baum: return 1;
        case Art::Textfeld: return senkrecht ? (static_cast<const Textfeld&>(*a.element).mehrzeilig ? 1 : 0) : 1;
        case Art::Auswahl: {
          const auto form = static_cast<const Auswahl&>(*a.element).form;
          return form == Auswahl::Form::Raster || form == Auswahl::Form::Liste ? 1 : 0;
        }
        case Art::Schieber:
        case Art::Balken: return senkrecht ? 0 : 1;
        default: return 0;
      }
    }
    for (const Anordnung& k : a.kinder) {
      if (Dehnung(k, senkrecht) > 0) return 1;
    }
    return 0;
  }

  QWidget* Knopfzeile_bauen(const Anordnung& a, QWidget* eltern) {
    auto* const w = new QWidget(eltern);
    auto* const zeile = Ausrichten(new QHBoxLayout(w));
    zeile->addStretch(1);
    for (const Anordnung& k : a.kinder) {
      if (k.art == Anordnung::Art::Feder) {
        zeile->addStretch(1);
      } else if (QWidget* const kind = Bau(k, w)) {
        zeile->addWidget(kind);
      }
    }
    return w;
  }

  QWidget* Gruppe_bauen(const Anordnung& a, QWidget* eltern) {
    auto* const w = new QWidget(eltern);
    auto* const spalte = Ausrichten(new QVBoxLayout(w));
    spalte->setSpacing(raster / 2);
    auto* const titel = new QLabel(w);
    titel->setProperty("gruppentitel", true);
    spalte->addWidget(titel);
    Anordnung inhalt(Anordnung::Art::Spalte);
    inhalt.kinder = a.kinder;
    QWidget* const kind = Bau(inhalt, w);
    spalte->addWidget(kind, 1);
    w->setAccessibleName(Q(a.titel));
    if (a.element == nullptr) {
      titel->setText(Q(a.titel));
    } else {
      Steuerelement& e = *a.element;
      ergebnis_.widgets[&e] = w;
      auf_.binden(e, [&e, w, titel, kind] {
        titel->setText(Ohne_kuerzel(Q(*e.titel)));
        titel->setVisible(!e.titel->empty());
        w->setObjectName(Q(e.name()));
        w->setAccessibleName(titel->text());
        w->setToolTip(Q(*e.hinweis));
        w->setVisible(e.sichtbar);
        kind->setEnabled(e.frei);
        Einfaerben(*titel, e.farbe);
      });
    }
    return w;
  }

  QWidget* Raster_bauen(const Anordnung& a, QWidget* eltern) {
    auto* const w = new QWidget(eltern);
    auto* const gitter = Ausrichten(new QGridLayout(w));
    gitter->setVerticalSpacing(raster / 2);
    int i = 0;
    for (const Anordnung& k : a.kinder) {
      const int zeile = i / a.spalten;
      const int spalte = i % a.spalten;
      ++i;
      QWidget* kind = nullptr;
      if (Hat_beschriftung(k)) {
        auto* const zelle = new QWidget(w);
        auto* const reihe = Ausrichten(new QHBoxLayout(zelle));
        QWidget* const feld = Bau(k, zelle);
        reihe->addWidget(Beschriftung(*k.element, feld, zelle));
        reihe->addWidget(feld, 1);
        kind = zelle;
      } else {
        kind = Bau(k, w);
      }
      if (kind == nullptr) continue;
      gitter->addWidget(kind, zeile, spalte);
      if (Dehnung(k, false) > 0) gitter->setColumnStretch(spalte, 1);
    }
    return w;
  }

  QWidget* Reiter_bauen(const Anordnung& a, QWidget* eltern) {
    auto* const w = new QWidget(eltern);
    auto* const spalte = Ausrichten(new QVBoxLayout(w));
    auto& wahl = static_cast<Auswahl&>(*a.element);
    spalte->addWidget(Element(wahl, w));
    auto* const stapel = new QStackedWidget(w);
    for (const Anordnung& k : a.kinder) {
      QWidget* const seite = Bau(k, stapel);
      stapel->addWidget(seite != nullptr ? seite : new QWidget(stapel));
    }
    spalte->addWidget(stapel, 1);
    const auto eigenes = wahl.beobachter;
    const auto blaettern = [&wahl, stapel] {
      if (wahl.position() >= 0 && wahl.position() < stapel->count()) stapel->setCurrentIndex(wahl.position());
    };
    wahl.beobachter = [eigenes, blaettern] {
      if (eigenes) eigenes();
      blaettern();
    };
    blaettern();
    return w;
  }

  QWidget* Besonders_bauen(const Anordnung& a, QWidget* eltern) {
    const auto bau = Besondere().find(a.titel);
    if (bau != Besondere().end()) return bau->second(a, auf_, eltern, ergebnis_);
    return Reihe(a, eltern, new QVBoxLayout);
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

  Auffrischer& auf_;
  Gebautes& ergebnis_;
};

}  // namespace

Gebautes Aufbauen(const Anordnung& a, Auffrischer& auf, QWidget* eltern) {
  Gebautes ergebnis;
  ergebnis.inhalt = Baumeister(auf, ergebnis).Bau(a, eltern);
  return ergebnis;
}

void Besonders_anmelden(const std::string& name, Besonderer_bau bau) { Besondere()[name] = std::move(bau); }

}  // namespace zav::fenster
