#include "simulator/startlader.h"

#include <numeric>

#include "simulator/hex.h"

namespace zav::simulator {

namespace {

constexpr std::string_view aufforderung =
    "ZAVmaster-1024 Bootloader\r\n"
    "a: Erase operating system\r\n"
    "b: Program operating system\r\n"
    "*: Quit Bootloader and start ZAVmaster-1024\r\n";

constexpr double aufruf_abstand = 1.0;  // s between two prompts
constexpr int aufrufe_nach_einschalten = 3;
constexpr double loeschdauer = 0.3;  // s
constexpr std::size_t satz_hoechstens = 4 + 2 * 255;

// Address bytes of a record type that carries data, by its digit; 0 for the others.
constexpr std::size_t adressbytes(char typ) {
  return typ >= '1' && typ <= '3' ? static_cast<std::size_t>(typ - '0') + 1 : 0;
}

// True when the text is a whole record: "S", type, count of bytes that follow, these bytes, the last of which
// makes the sum of all from the count on 255.
bool satz_stimmt(std::string_view satz) {
  if (satz.size() < 10 || satz.size() % 2 != 0 || satz[0] != 'S' || satz[1] < '0' || satz[1] > '9')
    return false;
  if (!ist_hex(satz.substr(2))) return false;
  const Bytes b = hex_bytes(satz.substr(2));
  if (b[0] != b.size() - 1 || b.size() < adressbytes(satz[1]) + 2) return false;
  return std::accumulate(b.begin(), b.end(), 0U) % 256 == 255;
}

}  // namespace

void Startlader::einschalten(bool bleiben, double jetzt) {
  lage = Lage::wirbt;
  wecker = jetzt;
  aufrufe_noch = bleiben ? 0 : aufrufe_nach_einschalten;
}

void Startlader::empfangen(char c, double jetzt, std::string& aus) {
  if (lage == Lage::loescht) return;
  if (c == '*') {
    if (firmware.gueltig) {
      lage = Lage::aus;
      wecker = nie;
    } else {
      lage = Lage::wartet;
      (aus += "No operating system\r\n") += aufforderung;
    }
    return;
  }
  if (lage == Lage::empfaengt) {
    if (c == '\r' || c == '\n') satz_nehmen(aus);
    else if (satz.size() <= satz_hoechstens) satz += c;
    return;
  }
  if (c < ' ') return;
  lage = Lage::wartet;
  wecker = nie;
  if (c == 'a') {
    lage = Lage::loescht;
    wecker = jetzt + loeschdauer;
    firmware = {.gueltig = false};
    aus += "Erasing";
  } else if (c == 'b') {
    lage = Lage::empfaengt;
    firmware = {.gueltig = false};
    satz.clear();
    aus += "Ready to receive\r\n";
  } else {
    aus += aufforderung;
  }
}

void Startlader::zeit(double jetzt, std::string& aus) {
  if (jetzt < wecker) return;
  if (lage == Lage::loescht) {
    lage = Lage::wartet;
    wecker = nie;
    (aus += "\r\n") += aufforderung;
  } else if (aufrufe_noch == 1 && firmware.gueltig) {
    lage = Lage::aus;
    wecker = nie;
  } else {
    if (aufrufe_noch > 1) --aufrufe_noch;
    wecker = jetzt + aufruf_abstand;
    aus += aufforderung;
  }
}

void Startlader::satz_nehmen(std::string& aus) {
  if (satz.empty()) return;
  ++firmware.saetze;
  const bool stimmt = satz_stimmt(satz);
  const char typ = satz.size() > 1 ? satz[1] : ' ';
  if (!stimmt) ++firmware.falsche;
  else if (const auto a = adressbytes(typ)) firmware.bytes += (satz.size() - 4) / 2 - a - 1;
  firmware.gueltig = firmware.bytes > 0 && firmware.falsche == 0;
  aus += stimmt ? '.' : '?';
  satz.clear();
  if (stimmt && typ >= '7') {
    lage = Lage::wartet;
    aus += "\r\n" + std::to_string(firmware.saetze) + " records, " + std::to_string(firmware.falsche) +
           " bad\r\n";
    aus += aufforderung;
  }
}

}  // namespace zav::simulator
