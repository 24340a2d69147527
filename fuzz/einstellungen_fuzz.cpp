// The settings file: reading any bytes keeps every value in its range, a changed key comes back, and all
// other lines stay.
#include <sys/stat.h>

#include <cerrno>
#include <cstring>
#include <string>

#include "eingabe.h"
#include "platform/dateisystem.h"
#include "platform/einstellungen.h"
#include "platform/ini.h"

using namespace zav;

namespace {

// One file, in memory.
class Eine_datei : public Dateisystem {
 public:
  std::string inhalt;

  int Oeffnen(const std::string&, int) override {
    stelle_ = 0;
    return 3;
  }
  int Stand(int, struct stat& stand) override {
    stand = {};
    stand.st_mode = S_IFREG;
    stand.st_size = static_cast<off_t>(inhalt.size());
    return 0;
  }
  long Lesen(int, char* ziel, std::size_t n) override {
    n = inhalt.copy(ziel, n, stelle_);
    stelle_ += n;
    return static_cast<long>(n);
  }
  int Schliessen(int) override { return 0; }

 private:
  std::size_t stelle_ = 0;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t n) {
  static Eine_datei datei;
  Dateisystem_setzen(&datei);
  Eingabe e(bytes, n);
  const std::string wert(e.text(e.byte() % 32));
  datei.inhalt = e.alles();

  Einstellungen_lesen();
  const Einstellungen& s = einstellungen;
  Verlangen(s.Com_port >= 1 && s.Com_port <= 8 && s.Com_art >= 0 && s.Com_art <= 2, "port in its range");
  Verlangen(s.Host_port >= 0 && s.Host_port <= 65535 && s.Richt_modus >= 0 && s.Richt_modus <= 2,
            "numbers in range");

  Ini ini(datei.inhalt);
  const auto fremd = ini.Lesen("Fremd", "bleibt");
  ini.Setzen("Startup", "HostName", wert);
  const auto gelesen = ini.Lesen("Startup", "HostName");
  Verlangen(gelesen.has_value(), "a key that was set is there");
  Ini wieder(ini.Inhalt());
  Verlangen(wieder.Lesen("startup", "hostname") == gelesen, "a key that was set comes back");
  Verlangen(wieder.Lesen("Fremd", "bleibt") == fremd, "other keys stay");
  Verlangen(wieder.Inhalt() == ini.Inhalt(), "the file comes back as it was written");
  return 0;
}
