#include "platform/ini.h"

#include <algorithm>

#include "basis/text.h"

namespace zav {

namespace {

// Name of the section that the line opens.
std::optional<std::string> Abschnitt(std::string_view zeile) {
  zeile = Ohne_rand(zeile);
  if (zeile.size() < 2 || zeile.front() != '[' || zeile.back() != ']') return std::nullopt;
  return Klein(Ohne_rand(zeile.substr(1, zeile.size() - 2)));
}

bool Ist_bemerkung(std::string_view zeile) { return zeile.starts_with(';') || zeile.starts_with('#'); }

}  // namespace

Ini::Ini(std::string_view inhalt) {
  if (inhalt.starts_with("\xEF\xBB\xBF")) inhalt.remove_prefix(3);
  while (!inhalt.empty()) {
    const auto ende = inhalt.find('\n');
    std::string_view zeile = inhalt.substr(0, ende);
    while (zeile.ends_with('\r')) zeile.remove_suffix(1);
    zeilen_.emplace_back(zeile);
    inhalt.remove_prefix(ende == std::string_view::npos ? inhalt.size() : ende + 1);
  }
}

Ini::Stelle Ini::Suchen(std::string_view abschnitt, std::string_view schluessel) const {
  Stelle stelle;
  const std::string gesuchter_abschnitt = Klein(abschnitt);
  const std::string gesuchter_schluessel = Klein(schluessel);
  bool darin = false;
  for (std::size_t i = 0; i < zeilen_.size(); ++i) {
    const std::string_view zeile = Ohne_rand(zeilen_[i]);
    if (const auto name = Abschnitt(zeile)) {
      darin = *name == gesuchter_abschnitt;
      if (darin) stelle.einfuegen = i + 1;
    } else if (darin && !zeile.empty()) {
      stelle.einfuegen = i + 1;
      const auto gleich = zeile.find('=');
      if (Ist_bemerkung(zeile) || gleich == std::string_view::npos) continue;
      if (Klein(Ohne_rand(zeile.substr(0, gleich))) == gesuchter_schluessel) {
        stelle.zeile = i;
        return stelle;
      }
    }
  }
  return stelle;
}

std::optional<std::string> Ini::Lesen(std::string_view abschnitt, std::string_view schluessel) const {
  const Stelle stelle = Suchen(abschnitt, schluessel);
  if (!stelle.zeile) return std::nullopt;
  const std::string_view zeile = zeilen_[*stelle.zeile];
  return std::string(Ohne_rand(zeile.substr(zeile.find('=') + 1)));
}

void Ini::Setzen(std::string_view abschnitt, std::string_view schluessel, std::string_view wert) {
  std::string zeile = std::string(schluessel) + "=" + std::string(wert);
  std::replace_if(
      zeile.begin(), zeile.end(), [](char c) { return c == '\n' || c == '\r'; }, ' ');
  const Stelle stelle = Suchen(abschnitt, schluessel);
  if (stelle.zeile) {
    zeilen_[*stelle.zeile] = zeile;
  } else if (stelle.einfuegen) {
    zeilen_.insert(zeilen_.begin() + static_cast<std::ptrdiff_t>(*stelle.einfuegen), zeile);
  } else {
    if (!zeilen_.empty()) zeilen_.emplace_back();
    zeilen_.push_back("[" + std::string(abschnitt) + "]");
    zeilen_.push_back(zeile);
  }
}

std::string Ini::Inhalt() const {
  std::string inhalt;
  for (const auto& zeile : zeilen_) inhalt.append(zeile).append("\n");
  return inhalt;
}

}  // namespace zav
