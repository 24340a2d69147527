#include "link/leitung.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <thread>

#include "basis/melder.h"
#include "basis/windows1252.h"
#include "basis/zahl.h"
#include "link/protokoll.h"
#include "platform/csc.h"
#include "platform/einstellungen.h"
#include "platform/sio.h"
#include "platform/uhrwerk.h"
#include "store/sitzung.h"

namespace zav {

Leitung leitung;

namespace {

using Uhr = std::chrono::steady_clock;

constexpr int pruefsumme_und_cr = 3;  // bytes behind the payload of a reply
constexpr int groesste_antwort = 128;
constexpr int versuche = 10;                                   // tries of a message that draws "F07"
constexpr int runde_ms = 50;                                   // longest wait without a turn of the front end
constexpr auto rundenabstand = std::chrono::milliseconds(20);  // shortest time between two turns
constexpr double tag_sekunden = 86400.0;

struct Verbindungsart {
  Verbindung link_art;
  i16 eth_modus;
  i16 antwort_zeit;
};
constexpr std::array<Verbindungsart, 3> verbindungsarten{
    {{Verbindung::com, 0, 2}, {Verbindung::tcp, 1, 10}, {Verbindung::tcp, 1, 15}}};

bool Ist_tcp() { return leitung.Link_art == Verbindung::tcp; }

// A turn for the front end. Thousands of exchanges of some microseconds do not need one each.
void Runde() {
  static Uhr::time_point letzte;
  const auto jetzt = Uhr::now();
  if (jetzt - letzte < rundenabstand) return;
  melder().DoEvents();
  letzte = Uhr::now();
}

// A moment in whole seconds of Timer(), reached when the rounded clock shows it. The clock begins anew at
// midnight; a wait that meets midnight is over then.
class Frist {
 public:
  static Frist In(std::int64_t sekunden) {
    const double jetzt = Timer();
    return {jetzt, Runden(jetzt) + sekunden};
  }
  // The end of the pause before a message is sent again. The half rounds to even: no pause in an even second,
  // up to the next one in an odd second.
  static Frist Pause() {
    const double jetzt = Timer();
    return {jetzt, Runden(static_cast<double>(Runden(jetzt)) + 0.5)};
  }

  bool Abgelaufen() const {
    const double jetzt = Timer();
    return jetzt < beginn_ - 1.0 || Runden(jetzt) >= ziel_;
  }
  // Real milliseconds until then, at least one, so that a wait for a rounded half does not spin.
  int Rest_ms() const {
    const double ende = std::min(static_cast<double>(ziel_) - 0.5, tag_sekunden);
    return std::max(1, Echte_millisekunden(ende - Timer()));
  }

 private:
  Frist(double beginn, std::int64_t ziel) : beginn_(beginn), ziel_(ziel) {}

  double beginn_;
  std::int64_t ziel_;
};

void Pause_abwarten() {
  const Frist pause = Frist::Pause();
  while (!pause.Abgelaufen()) std::this_thread::sleep_for(std::chrono::milliseconds(pause.Rest_ms()));
}

// The two libraries under one roof.
int Warten(int n, int ms) {
  return Ist_tcp() ? cscAwaitData(leitung.Tcp_socket, ms, n) : SioWarten(Sio_port(), n, ms);
}
int Nehmen(char* puffer, int n) {
  return Ist_tcp() ? cscGetData(leitung.Tcp_socket, puffer, n) : SioGets(Sio_port(), puffer, n);
}

enum class Ausgang { da, zu_spaet, getrennt };

Ausgang Antwort_abwarten(int n, const Frist& frist) {
  for (;;) {
    Runde();
    const int da = Warten(n, std::min(runde_ms, frist.Rest_ms()));
    if (da >= n) return Ausgang::da;
    if (da < 0) return Ausgang::getrennt;
    if (frist.Abgelaufen()) return Ausgang::zu_spaet;
  }
}

void Ohne_antwort(const std::string& ersatz) {
  leitung.Empfang_status = 1;
  leitung.Empfang_text = ersatz;
}

// Waits for the reply and puts it into Empfang_text.
void Antwort_holen(i16 zeit, int antwortlaenge) {
  const Frist frist = Frist::In(zeit);
  leitung.Empfang_status = 0;
  const Ausgang ausgang = Antwort_abwarten(antwortlaenge, frist);
  std::array<char, groesste_antwort> puffer{};
  // The serial queue gives up what stands in it even when that is too short; the socket keeps it.
  const int n = ausgang == Ausgang::da || !Ist_tcp() ? Nehmen(puffer.data(), antwortlaenge) : 0;
  if (ausgang != Ausgang::da) {
    if (ausgang == Ausgang::zu_spaet || !Ist_tcp()) melder().Piep();
    sitzung.Master_neu_pruefen = 1;
    Ohne_antwort(Antwort_keine);
    return;
  }
  const int nutzlast = std::max(0, n - pruefsumme_und_cr);
  leitung.Empfang_text.clear();
  Aus_1252({puffer.data(), static_cast<std::size_t>(nutzlast)}, leitung.Empfang_text);
  leitung.Empfang_text += '\r';
}

void Com_oeffnen() {
  leitung.Port_fehler = 0;
  const auto gescheitert = [](const std::string& text) {
    if (leitung.Lib_status >= 0) return false;
    leitung.Port_fehler = 1;
    Melden("SIO-Fehler " + std::to_string(leitung.Lib_status) + text);
    return true;
  };
  leitung.Lib_status = SioBaud(-1, 9);
  if (gescheitert(": Fehler Baudrate")) return;
  leitung.Lib_status = SioParms(-1, 0, 0, 8);
  if (gescheitert(": Fehler Parameter")) return;
  leitung.Lib_status = SioReset(Sio_port(), groesste_antwort, 1100);
  gescheitert(
      " --- F97: COM-Port kann nicht geöffnet werden. Eventuell ist es bereits durch ein anderes Programm "
      "belegt.\r\n\r\n" +
      SioUrsache());
}

void Tcp_oeffnen() {
  leitung.Port_fehler = 0;
  cscAttach();
  melder().DoEvents();
  leitung.Tcp_socket = cscClient(einstellungen.Host_ip, einstellungen.Host_port);
  leitung.Lib_status = leitung.Tcp_socket;
  if (leitung.Tcp_socket >= 0) return;
  leitung.Port_fehler = 1;
  Melden("TCP-Fehler " + std::to_string(leitung.Lib_status) + ": Fehler beim Öffnen\r\n\r\n" + cscUrsache());
  cscRelease();
}

}  // namespace

void Com_art_setzen() {
  const auto& art =
      verbindungsarten.at(static_cast<std::size_t>(std::clamp<int>(einstellungen.Com_art, 0, 2)));
  leitung.Link_art = art.link_art;
  leitung.Eth_modus = art.eth_modus;
  leitung.Antwort_zeit = art.antwort_zeit;
}

int Sio_port() { return einstellungen.Com_geraet.empty() ? einstellungen.Com_port - 1 : sio_direkt; }

void Port_oeffnen() {
  switch (leitung.Link_art) {
    case Verbindung::com: return Com_oeffnen();
    case Verbindung::tcp: return Tcp_oeffnen();
    case Verbindung::geraeteserver: break;
  }
  Melden("Es ist weder COMx- noch TCP-Schnittstelle ausgewählt");
}

void Port_schliessen() {
  switch (leitung.Link_art) {
    case Verbindung::com: SioDone(Sio_port()); break;
    case Verbindung::tcp:
      if (leitung.Tcp_socket >= 0) cscClose(leitung.Tcp_socket);
      leitung.Tcp_socket = -1;
      cscRelease();
      break;
    case Verbindung::geraeteserver: break;
  }
}

void Meldung_senden(std::string& text, i16 zeit, bool anhang, int antwortlaenge) {
  if (leitung.Link_art == Verbindung::geraeteserver) return;
  antwortlaenge = std::min(antwortlaenge, groesste_antwort);
  if (anhang) text += Pruefsumme(text) + "\r";
  if (leitung.Abbruch_flag == 1) {
    melder().Piep();
    leitung.Abbruch_gemeldet = 1;
    Ohne_antwort(Antwort_abbruch);
    leitung.Abbruch_flag = 0;
    return;
  }
  for (int versuch = 1;; ++versuch) {
    leitung.Lib_status = Bytes_senden(text);
    if (leitung.Lib_status < 0) {
      if (Ist_tcp()) return Ohne_antwort(Antwort_keine);
      Melden("SIO: Fehler " + std::to_string(leitung.Lib_status) + " bei Befehl puts");
    }
    Antwort_holen(zeit, antwortlaenge);
    if (leitung.Empfang_text != Antwort_pruefsumme) return;
    leitung.Fehler_korrigiert += 1;
    if (versuch == versuche) return;
    Pause_abwarten();
    Byte_senden('%');
    Pause_abwarten();
  }
}

bool Antwort_ist_gut() { return leitung.Empfang_status == 0 && leitung.Empfang_text == Antwort_gut; }

void Byte_senden(char byte) { leitung.Lib_status = Bytes_senden({&byte, 1}); }

int Bytes_senden(std::string_view text) {
  const std::string bytes = Nach_1252(text);
  const int n = static_cast<int>(bytes.size());
  return Ist_tcp() ? cscPutData(leitung.Tcp_socket, bytes.data(), n) : SioPuts(Sio_port(), bytes.data(), n);
}

int Bytes_lesen(char* puffer, int n, int ms) {
  const auto ende = Uhr::now() + std::chrono::milliseconds(ms);
  for (;;) {
    Runde();
    const auto rest = std::chrono::ceil<std::chrono::milliseconds>(ende - Uhr::now()).count();
    const int da = Warten(1, static_cast<int>(std::clamp<std::int64_t>(rest, 0, runde_ms)));
    if (da > 0) return Nehmen(puffer, n);
    if (da < 0 || rest <= runde_ms) return da;
  }
}

void Empfang_leeren() {
  constexpr int stille_ms = 50;
  const auto ende = Uhr::now() + std::chrono::seconds(1);
  std::array<char, groesste_antwort> puffer{};
  while (Uhr::now() < ende && Warten(1, stille_ms) > 0)
    Nehmen(puffer.data(), static_cast<int>(puffer.size()));
}

void Com_suche() {
  if (leitung.Com_gesucht == 1) return;
  const Wartezeiger zeiger;
  std::string text = "Freie COM-Ports 1 - 8 werden gesucht...bitte um einen Moment Geduld: ";
  melder().Hinweis(text);
  for (int port = 0; port < 8; ++port) {
    const bool frei = SioReset(port, groesste_antwort, 0) >= 0;
    leitung.Com_frei[port] = frei ? 1 : 0;
    leitung.Com_ursache[port] = SioUrsache();
    if (frei) SioDone(port);
    text += std::to_string(port + 1) + ", ";
    melder().Hinweis(text);
    melder().DoEvents();
  }
  melder().Hinweis("");
  leitung.Com_gesucht = 1;
}

}  // namespace zav
