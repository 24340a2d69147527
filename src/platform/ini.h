// An INI file as people edit it: sections, key=value lines, comments. What is not asked for stays as it
// stands.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zav {

// UTF-8. Sections and keys are found whatever their case; of a key that stands twice the first counts.
class Ini {
 public:
  explicit Ini(std::string_view inhalt = {});

  // The value without blanks around it; nothing where the key is missing.
  std::optional<std::string> Lesen(std::string_view abschnitt, std::string_view schluessel) const;
  // Changes the key's line, or adds one at the end of its section (which is added where it is missing). A
  // line break in the value becomes a blank.
  void Setzen(std::string_view abschnitt, std::string_view schluessel, std::string_view wert);

  std::string Inhalt() const;

 private:
  struct Stelle {
    std::optional<std::size_t> zeile;      // the key's line
    std::optional<std::size_t> einfuegen;  // where the section would take a new one
  };
  Stelle Suchen(std::string_view abschnitt, std::string_view schluessel) const;

  std::vector<std::string> zeilen_;
};

}  // namespace zav
