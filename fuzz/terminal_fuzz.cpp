// The terminal's line splitting: whatever the master says, no line grows without end and every piece is shown
// once.
#include "basis/melder.h"
#include "eingabe.h"
#include "gegenueber.h"
#include "link/leitung.h"
#include "platform/einstellungen.h"
#include "platform/uhrwerk.h"
#include "service/terminal.h"
#include "store/sitzung.h"

using namespace zav;

namespace {

struct Redselig : Gegenueber {
  explicit Redselig(std::string_view t) : text(t) {}
  void hoeren(std::string_view bytes) override {
    if (bytes.starts_with("I")) da += "F00A6\r" + std::string(text);
    weg = true;  // once that has been read
  }
  std::string_view text;
};

struct Anzeige : Terminalanzeige {
  void Text_zeigen(const std::string&) override {}
  void Zeile_zeigen(const std::string& zeile) override {
    Verlangen(zeile.size() < 32768, "a line is bounded");
    Verlangen(zeile.find('\r') == std::string::npos, "a line is one line");
  }
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t n) {
  static const bool bereit = [] {
    Zeitraffer_setzen(1e6);
    einstellungen.Com_art = 1;
    Com_art_setzen();
    return true;
  }();
  static_cast<void>(bereit);
  Eingabe e(bytes, n);
  Anzeige anzeige;
  Terminal terminal(anzeige);
  const std::size_t art = e.byte();
  terminal.Check1 = art & 2;
  terminal.Check2 = art & 4;
  if (art & 8) terminal.Filter[0] = std::string(e.text(e.byte() % 16));
  Redselig master(e.alles());
  gegenueber = &master;
  Verlangen(terminal.Terminal_lauf(art & 1 ? Terminalmodus::liste : Terminalmodus::protokoll) !=
                Terminalende::verlassen,
            "a line that breaks down ends the terminal");
  return 0;
}
