#include "service/firmware_leitung.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <thread>

#include "basis/melder.h"
#include "link/leitung.h"
#include "platform/asc.h"
#include "platform/datei.h"
#include "platform/einstellungen.h"
#include "platform/nsio.h"
#include "platform/sio.h"
#include "platform/uhrwerk.h"

namespace zav {

namespace {

// ---- serial port ------------------------------------------------------------------------------------------

class Com_leitung final : public Firmwareleitung {
 public:
  // The update over COM takes the serial port whatever the link to the running master is.
  Com_leitung() {
    leitung.Link_art = Verbindung::com;
    leitung.Eth_modus = 0;
  }
  ~Com_leitung() override {
    Port_schliessen();
    Com_art_setzen();
  }

  bool Oeffnen() override {
    Port_oeffnen();
    if (leitung.Port_fehler != 0) {
      Melden("SIO: Fehler " + std::to_string(leitung.Port_fehler) + " bei Open Port");
      return false;
    }
    SioDTR(Sio_port(), 'S');
    SioRTS(Sio_port(), 'S');
    return true;
  }
  int Schreiben(std::string_view bytes) override {
    return SioPuts(Sio_port(), bytes.data(), static_cast<int>(bytes.size()));
  }
  int Lesen(char* puffer, int n, int ms) override {
    const int da = SioWarten(Sio_port(), 1, ms);
    return da > 0 ? SioGets(Sio_port(), puffer, n) : da;
  }
  void Leeren() override { SioRxClear(Sio_port()); }
  void Modemleitungen_loeschen() override {
    SioDTR(Sio_port(), 'C');
    SioRTS(Sio_port(), 'C');
  }
  int Datei_senden(const std::string& pfad, const std::function<void(const std::string&)>& protokoll,
                   const std::function<void(Sendestand)>& runde) override {
    constexpr int zeilenpause_us = 1000;
    ascInit(Sio_port(), zeilenpause_us, 1);
    protokoll("Datenübertragung vorbereiten");
    const int beginn = ascStartTx(pfad, static_cast<int>(pfad.size()), 0, 0);
    protokoll("ascStartTx " + std::to_string(beginn));
    protokoll("Daten werden jetzt übertragen, bitte warten...");
    int fertig = 0;
    do {
      fertig = ascDriver();
      runde({ascGesendet(), ascLaenge()});
    } while (fertig != 1);
    std::array<char, 80> text{};
    ascGetMessage(text.data(), static_cast<int>(text.size()));
    protokoll(text.data());
    protokoll("Datenübertragung fertig");
    return ascFehler();
  }
};

// ---- device server ----------------------------------------------------------------------------------------

class Ethernet_leitung final : public Firmwareleitung {
 public:
  ~Ethernet_leitung() override {
    if (port_ > 0) nsio_close(port_);
    nsio_end();
  }

  bool Oeffnen() override {
    constexpr int verbindungszeit_ms = 3000;
    nsio_init();
    port_ = nsio_open(einstellungen.Host_ip, 1, verbindungszeit_ms);
    if (port_ <= 0) {
      Melden(
          "Serial Device Server nicht gefunden, muss im lokalen Netzwerk sein, über DynDNS nicht möglich!");
      return false;
    }
    nsio_ioctl(port_, nsio_baud_115200, nsio_acht_bits);
    nsio_flowctrl(port_, nsio_xonxoff_senden | nsio_xonxoff_empfangen);
    nsio_DTR(port_, 1);
    nsio_RTS(port_, 1);
    return true;
  }
  int Schreiben(std::string_view bytes) override {
    return nsio_write(port_, bytes.data(), static_cast<int>(bytes.size()));
  }
  int Lesen(char* puffer, int n, int ms) override {
    const int da = nsio_warten(port_, ms);
    return da > 0 ? nsio_read(port_, puffer, n) : da;
  }
  void Leeren() override { nsio_leeren(port_); }
  void Modemleitungen_loeschen() override {
    nsio_DTR(port_, 0);
    nsio_RTS(port_, 0);
    nsio_flowctrl(port_, 0);
  }
  // The network takes the file in no time and the server holds it for the line: handed over at the line's
  // speed, progress tells the truth and the end is the end.
  int Datei_senden(const std::string& pfad, const std::function<void(const std::string&)>& protokoll,
                   const std::function<void(Sendestand)>& runde) override {
    using Uhr = std::chrono::steady_clock;
    constexpr std::size_t stueck = 100;
    constexpr double zeichen_je_s = 11520;
    std::string text;
    const Dateiergebnis gelesen = Datei_lesen(pfad, text);
    int fehler = -gelesen.fehler;
    if (fehler < 0) protokoll(Systemfehler_text(-fehler));
    protokoll("Daten werden jetzt übertragen, bitte warten...");
    const auto beginn = Uhr::now();
    std::size_t da = 0;
    while (da < text.size()) {
      const std::string_view teil = std::string_view(text).substr(da, stueck);
      if (const int n = Schreiben(teil); n < 0) {
        fehler = n;
        protokoll(Systemfehler_text(-n));
        break;
      }
      da += teil.size();
      runde({da, text.size()});
      std::this_thread::sleep_until(
          beginn + std::chrono::milliseconds(Echte_millisekunden(static_cast<double>(da) / zeichen_je_s)));
    }
    protokoll("Datenübertragung fertig");
    protokoll(std::to_string(da) + " Zeichen übermittelt");
    return fehler;
  }

 private:
  int port_ = 0;
};

}  // namespace

std::unique_ptr<Firmwareleitung> Firmwareleitung_anlegen(Updateweg weg) {
  if (weg == Updateweg::com) return std::make_unique<Com_leitung>();
  return std::make_unique<Ethernet_leitung>();
}

}  // namespace zav
