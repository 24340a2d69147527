#include "simulator/ablage.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <sstream>
#include <stdexcept>

#include "simulator/fd.h"

namespace zav::simulator {

namespace {

constexpr std::string_view kopf = "ZAVmaster-Speicher 1\n";

std::string dateisumme(std::string_view text) {
  std::uint32_t summe = 0;
  for (const char c : text) summe += static_cast<unsigned char>(c);
  return hex(summe, 8);
}

std::string als_text(const Bestand& b) {
  std::string text(kopf);
  for (std::uint32_t n = 0; n < Speicher::seitenzahl; ++n)
    if (const auto* s = b.speicher.seite(n)) text += "S " + hex(n, 3) + ' ' + hex(*s) + '\n';
  for (const auto& [befehl, ziffern] : b.bloecke)
    text.append("B ").append(befehl).append(" ").append(ziffern).append("\n");
  for (std::size_t r = 0; r < b.empfaenger.size(); ++r)
    if (const auto& t = b.empfaenger[r].tabelle(); std::ranges::any_of(t, [](auto x) { return x != 0; }))
      text += "E " + hex(r, 1) + ' ' + hex(t) + '\n';
  return text + "Ende " + dateisumme(text) + '\n';
}

// Takes one line of the file; false when it is none.
bool zeile_uebernehmen(const std::string& zeile, Bestand& b) {
  std::istringstream felder(zeile);
  std::string art, name, ziffern;
  if (!(felder >> art >> name >> ziffern) || !ist_hex(ziffern) || !felder.eof()) return false;
  const auto nummer = hex_zahl(name);
  if (art == "B") return b.bloecke.emplace(name, ziffern).second;
  if (art == "S" && nummer && *nummer < Speicher::seitenzahl &&
      ziffern.size() == std::size_t{2} * Speicher::seitengroesse) {
    b.speicher.schreiben(*nummer * Speicher::seitenabstand, hex_bytes(ziffern));
    return true;
  }
  if (art == "E" && nummer && *nummer < Empfaenger::anzahl &&
      ziffern.size() == 2 * Empfaenger::tabellengroesse) {
    Empfaenger::Tabelle t;
    std::ranges::copy(hex_bytes(ziffern), t.begin());
    b.empfaenger[*nummer].tabelle_setzen(t);
    return true;
  }
  return false;
}

[[noreturn]] void fehlgeschlagen(const std::string& datei, const char* was) {
  throw std::runtime_error("Speicherdatei \"" + datei + "\" kann nicht " + was +
                           " werden: " + std::strerror(errno));
}

}  // namespace

void Bestand::loeschen() {
  speicher.loeschen();
  std::erase_if(bloecke, [](const auto& b) { return b.first != "U"; });  // the clock runs on
}

void Bestand_laden(const std::string& datei, Bestand& b) {
  if (!std::filesystem::exists(datei)) return;
  if (!std::filesystem::is_regular_file(datei))
    throw std::runtime_error("Speicherdatei \"" + datei + "\" ist keine gewöhnliche Datei");
  errno = 0;
  std::ifstream ein(datei, std::ios::binary);
  std::string text;
  if (ein) text.assign(std::istreambuf_iterator<char>(ein), {});
  if (!ein) fehlgeschlagen(datei, "gelesen");
  if (text.empty()) return;

  const auto beschaedigt = [&](const std::string& wo) {
    throw std::runtime_error("Speicherdatei \"" + datei + "\" ist beschädigt (" + wo + ")");
  };
  if (!text.starts_with(kopf)) beschaedigt("kein Speicher eines ZAVmasters");
  const auto ende = text.rfind("\nEnde ");
  if (ende == std::string::npos) beschaedigt("Ende fehlt");
  const std::string_view inhalt = std::string_view(text).substr(0, ende + 1);
  if (text.substr(ende + 1) != "Ende " + dateisumme(inhalt) + '\n') beschaedigt("Prüfsumme");

  auto neu = std::make_unique<Bestand>();
  std::istringstream zeilen{std::string(inhalt.substr(kopf.size()))};
  int nummer = 1;
  for (std::string zeile; std::getline(zeilen, zeile);) {
    ++nummer;
    if (!zeile_uebernehmen(zeile, *neu)) beschaedigt("Zeile " + std::to_string(nummer));
  }
  b = std::move(*neu);
}

void Bestand_speichern(const std::string& datei, const Bestand& b) {
  std::string neben = datei + ".XXXXXX";
  const std::string text = als_text(b);
  const auto aufgeben = [&] {
    const int grund = errno;
    ::unlink(neben.c_str());
    errno = grund;
    fehlgeschlagen(datei, "geschrieben");
  };

  Fd aus(::mkostemp(neben.data(), O_CLOEXEC));
  if (!aus) fehlgeschlagen(datei, "geschrieben");
  for (std::size_t ab = 0; ab < text.size();) {
    const auto n = ::write(aus.nummer(), text.data() + ab, text.size() - ab);
    if (n < 0 && errno == EINTR) continue;
    if (n < 0) aufgeben();
    ab += static_cast<std::size_t>(n);
  }
  if (::fsync(aus.nummer()) != 0 || ::rename(neben.c_str(), datei.c_str()) != 0) aufgeben();
}

}  // namespace zav::simulator
