// The project reader over all generations. The input is either a file as it stands, or changes to the lines
// of a good one, so that the fuzzer comes as deep as a file is long. Whatever was read must come back from a
// file that was saved: read, saved, read and saved again gives the same bytes.
#include <array>
#include <string>
#include <vector>

#include "eingabe.h"
#include "store/projektdatei.h"

using namespace zav;

namespace {

constexpr std::array versionen{"910", "900", "800", "710", "700", "600", "500"};
constexpr std::size_t leere_zeilen = 12000;  // more than any old generation has where nothing is in use

using Zeilen = std::vector<std::string>;

// The lines of a project with nothing in use.
Zeilen Grundlage(const char* version) {
  Projekt p;
  p.Datei_version = version;
  if (Alte_generation(version)) {
    Zeilen zeilen(leere_zeilen);
    zeilen[1] = version;
    return zeilen;
  }
  const std::string bytes = Projekt_schreiben(p);
  Zeilen zeilen;
  std::size_t von = 0;
  for (std::size_t n = 0; (n = bytes.find("\r\n", von)) != std::string::npos; von = n + 2) {
    zeilen.push_back(bytes.substr(von, n - von));
  }
  return zeilen;
}

std::string Datei(Eingabe& e) {
  static const auto grundlagen = [] {
    std::array<Zeilen, versionen.size()> g;
    for (std::size_t i = 0; i < g.size(); ++i) g[i] = Grundlage(versionen[i]);
    return g;
  }();
  const std::size_t art = e.byte() % (versionen.size() + 1);
  if (art == versionen.size()) return std::string(e.alles());
  Zeilen zeilen = grundlagen[art];
  while (!e.leer()) {
    const std::size_t zeile = e.wort() % zeilen.size();
    zeilen[zeile] = e.text(e.byte());
  }
  std::string bytes;
  for (const std::string& z : zeilen) bytes += z + "\r\n";
  return bytes;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t n) {
  static const Projekt frisch;
  static Projekt p;
  Eingabe e(bytes, n);
  p = frisch;
  if (!Projekt_lesen(Datei(e), p)) return 0;
  if (Alte_generation(p.Datei_version)) p.Datei_version = "910";
  const std::string einmal = Projekt_schreiben(p);
  p = frisch;
  Verlangen(Projekt_lesen(einmal, p), "what was saved can be read");
  Verlangen(Projekt_schreiben(p) == einmal, "what was saved comes back");
  return 0;
}
