// The two ways to the master's bootloader: a serial port, and the serial port of a device server in the
// network.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>

namespace zav {

enum class Updateweg { com, ethernet };

class Firmwareleitung {
 public:
  virtual ~Firmwareleitung() = default;  // closes

  // Opens the line and sets its modem lines. False after a box.
  virtual bool Oeffnen() = 0;
  virtual int Schreiben(std::string_view bytes) = 0;
  // Takes up to n bytes, waiting in the kernel for the first, at most ms real milliseconds. Their number, 0
  // when none came, negative once the line is gone.
  virtual int Lesen(char* puffer, int n, int ms) = 0;
  // Drops what has come.
  virtual void Leeren() = 0;
  virtual void Modemleitungen_loeschen() = 0;

  struct Sendestand {
    std::size_t gesendet = 0;
    std::size_t laenge = 0;
  };
  // Sends the file as it stands. `protokoll` takes a line of the log; `runde` runs after each piece. 0, or a
  // negative error number when not all of it could be read and has gone.
  virtual int Datei_senden(const std::string& pfad, const std::function<void(const std::string&)>& protokoll,
                           const std::function<void(Sendestand)>& runde) = 0;
};

std::unique_ptr<Firmwareleitung> Firmwareleitung_anlegen(Updateweg weg);

}  // namespace zav
