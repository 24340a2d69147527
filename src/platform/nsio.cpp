#include "platform/nsio.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string_view>

#include "basis/melder.h"
#include "platform/csc.h"
#include "platform/uhrwerk.h"

namespace zav {

namespace {

using Uhr = std::chrono::steady_clock;
using std::chrono::milliseconds;

// Telnet (RFC 854): commands behind IAC, and the options in use.
enum Telnet : unsigned char { SE = 240, SB = 250, WILL = 251, WONT = 252, DO = 253, DONT = 254, IAC = 255 };
enum Option : unsigned char { option_binaer = 0, option_sga = 3, option_com_port = 44 };

// COM-PORT (RFC 2217): commands of the client; the server's reply has the number plus 100.
enum Com_port : unsigned char {
  set_baudrate = 1,
  set_datasize = 2,
  set_parity = 3,
  set_stopsize = 4,
  set_control = 5,
  server_suspend = 108,
  server_resume = 109,
};
constexpr unsigned char antwortversatz = 100;

constexpr unsigned char parity_none = 1, stopsize_1 = 1;
constexpr unsigned char control_ohne = 1, control_xonxoff = 2, control_hardware = 3;
constexpr unsigned char control_dtr_an = 8, control_dtr_aus = 9, control_rts_an = 11, control_rts_aus = 12;

constexpr double antwortzeit_s =
    3.0;  // for the confirmation of a setting, and for a pause that the server asks for
constexpr milliseconds runde{50};              // between two turns of the front end
constexpr std::size_t laengste_auskunft = 64;  // bytes of a subnegotiation that are kept
// A server in front of a line of 115200 baud never comes near these: the bytes of the line that wait to be
// taken, which are five seconds of it, and the blocks that are read at a time.
constexpr std::size_t meiste_daten = std::size_t{1} << 16;
constexpr int meiste_bloecke = 64;

std::string Bytes(std::initializer_list<int> werte) {
  std::string s;
  for (const int w : werte) s += static_cast<char>(w);
  return s;
}

// One open port: takes the Telnet stream apart, and puts one together.
class Serverport {
 public:
  explicit Serverport(int socket) : socket_(socket) {}
  ~Serverport() { cscClose(socket_); }
  Serverport(const Serverport&) = delete;
  Serverport& operator=(const Serverport&) = delete;

  // Agrees on the options; 0 or negative.
  int Aushandeln(double sekunden) {
    const int n = Roh_senden(Bytes({IAC, WILL, option_binaer, IAC, DO, option_binaer, IAC, WILL, option_sga,
                                    IAC, DO, option_sga, IAC, WILL, option_com_port}));
    if (n < 0) return n;
    const int ergebnis = Abwarten(sekunden, [this] { return com_port_.has_value(); });
    if (ergebnis < 0) return ergebnis;
    return *com_port_ ? 0 : -EPROTONOSUPPORT;
  }

  // A setting that the server confirms with the value it took; 0 or negative.
  int Einstellen(unsigned char befehl, const std::string& wert) {
    bestaetigt_.erase(befehl + antwortversatz);
    const int n = Roh_senden(Bytes({IAC, SB, option_com_port, befehl}) + Verdoppelt(wert) + Bytes({IAC, SE}));
    if (n < 0) return n;
    const auto da = [&] { return bestaetigt_.contains(befehl + antwortversatz); };
    const int ergebnis = Abwarten(antwortzeit_s, da);
    if (ergebnis < 0) return ergebnis;
    return bestaetigt_[befehl + antwortversatz] == wert ? 0 : -EINVAL;
  }

  int Nehmen(char* puffer, int n) {
    const auto gewuenscht = static_cast<std::size_t>(std::max(n, 0));
    if (daten_.size() < gewuenscht) Nachlesen();
    const std::size_t m = std::min(gewuenscht, daten_.size());
    std::copy_n(daten_.begin(), m, puffer);
    daten_.erase(0, m);
    return static_cast<int>(m);
  }
  void Leeren() {
    Nachlesen();
    daten_.clear();
  }

  int Warten(int ms) {
    const auto ende = Uhr::now() + milliseconds(ms);
    // What wakes the wait may be Telnet's own.
    for (;;) {
      int da = daten_.empty() ? Nachlesen() : 0;
      if (!daten_.empty()) return static_cast<int>(daten_.size());
      const auto rest = std::chrono::ceil<milliseconds>(ende - Uhr::now()).count();
      if (da < 0 || rest <= 0) return std::min(da, 0);
      da = cscAwaitData(socket_, static_cast<int>(rest));
      if (da < 0) return da;
    }
  }

  int Senden(std::string_view bytes) {
    if (angehalten_) {
      const int ergebnis = Abwarten(antwortzeit_s, [this] { return !angehalten_; });
      if (ergebnis < 0) return ergebnis;
    }
    std::string text = Verdoppelt(bytes);
    if (!sendet_binaer_) Nullen_einfuegen(text);
    const int n = Roh_senden(text);
    return n < 0 ? n : static_cast<int>(bytes.size());
  }

 private:
  enum class Lage { daten, iac, option, auskunft, auskunft_iac };

  static std::string Verdoppelt(std::string_view bytes) {
    std::string text;
    text.reserve(bytes.size());
    for (const char c : bytes) {
      text += c;
      if (static_cast<unsigned char>(c) == IAC) text += c;
    }
    return text;
  }
  // Where bytes are not agreed on as transparent, a CR that stands for itself is followed by a zero.
  static void Nullen_einfuegen(std::string& text) {
    for (std::size_t i = text.find('\r'); i != std::string::npos; i = text.find('\r', i + 2))
      text.insert(i + 1, 1, '\0');
  }

  int Roh_senden(const std::string& text) {
    return cscPutData(socket_, text.data(), static_cast<int>(text.size()));
  }

  // Takes in what has come, of a flood a part; negative once the server has closed or takes no answer any
  // more.
  int Nachlesen() {
    const int da = cscReadSize(socket_);
    std::array<char, 1024> block{};
    for (int bloecke = 0; bloecke < meiste_bloecke && fehler_ == 0; ++bloecke) {
      const int n = cscGetData(socket_, block.data(), static_cast<int>(block.size()));
      if (n <= 0) break;
      for (int i = 0; i < n; ++i) Byte(static_cast<unsigned char>(block[static_cast<std::size_t>(i)]));
    }
    return fehler_ != 0 ? fehler_ : da;
  }

  void Datenbyte(unsigned char b) {
    if (daten_.size() < meiste_daten) daten_ += static_cast<char>(b);
  }

  template <class Fertig>
  int Abwarten(double sekunden, Fertig fertig) {
    const auto ende = Uhr::now() + milliseconds(Echte_millisekunden(sekunden));
    for (;;) {
      const int da = Nachlesen();
      if (fertig()) return 0;
      if (da < 0) return da;
      if (Uhr::now() >= ende) return -ETIMEDOUT;
      melder().DoEvents();
      cscAwaitData(socket_, static_cast<int>(runde.count()));
    }
  }

  void Byte(unsigned char b) {
    switch (lage_) {
      case Lage::daten:
        if (b == IAC) {
          lage_ = Lage::iac;
        } else if (b != 0 || empfaengt_binaer_ || daten_.empty() || daten_.back() != '\r') {
          Datenbyte(b);
        }
        break;
      case Lage::iac:
        lage_ = Lage::daten;
        if (b == IAC) Datenbyte(b);
        if (b >= WILL && b <= DONT) {
          verb_ = b;
          lage_ = Lage::option;
        } else if (b == SB) {
          auskunft_.clear();
          lage_ = Lage::auskunft;
        }
        break;
      case Lage::option:
        lage_ = Lage::daten;
        Verhandelt(b);
        break;
      case Lage::auskunft:
        if (b == IAC) {
          lage_ = Lage::auskunft_iac;
        } else {
          Auskunft_ergaenzen(b);
        }
        break;
      case Lage::auskunft_iac:
        lage_ = b == IAC ? Lage::auskunft : Lage::daten;
        if (b == IAC) Auskunft_ergaenzen(b);
        if (b == SE) Auskunft_verstehen();
        break;
    }
  }

  void Auskunft_ergaenzen(unsigned char b) {
    if (auskunft_.size() < laengste_auskunft) auskunft_ += static_cast<char>(b);
  }

  void Verhandelt(unsigned char option) {
    const bool ja = verb_ == WILL || verb_ == DO;
    const bool von_uns = verb_ == DO || verb_ == DONT;  // what we do; else what the server does
    switch (option) {
      case option_binaer: (von_uns ? sendet_binaer_ : empfaengt_binaer_) = ja; break;
      case option_com_port:
        if (von_uns) com_port_ = ja;
        break;
      case option_sga: break;
      default:
        if (ja) Ablehnen(von_uns ? WONT : DONT, option);
    }
  }

  // Once for each option: a refusal holds. A server that asks without reading would otherwise hold us with
  // every answer.
  void Ablehnen(unsigned char verb, unsigned char option) {
    if (fehler_ != 0 || !abgelehnt_[verb == WONT].insert(option).second) return;
    fehler_ = std::min(0, Roh_senden(Bytes({IAC, verb, option})));
  }

  void Auskunft_verstehen() {
    if (auskunft_.size() < 2 || static_cast<unsigned char>(auskunft_[0]) != option_com_port) return;
    const auto befehl = static_cast<unsigned char>(auskunft_[1]);
    if (befehl == server_suspend || befehl == server_resume) {
      angehalten_ = befehl == server_suspend;
    } else {
      bestaetigt_[befehl] = auskunft_.substr(2);
    }
  }

  int socket_;
  Lage lage_ = Lage::daten;
  unsigned char verb_ = 0;
  std::string auskunft_;          // subnegotiation being received
  std::string daten_;             // bytes of the line, not yet taken
  std::optional<bool> com_port_;  // the server lets us control its port
  bool sendet_binaer_ = false, empfaengt_binaer_ = false;
  bool angehalten_ = false;                           // the server wants no data now
  std::map<int, std::string> bestaetigt_;             // values confirmed last, by number of the reply
  std::array<std::set<unsigned char>, 2> abgelehnt_;  // options refused to it and to us
  int fehler_ = 0;                                    // negative once an answer did not go out
};

std::map<int, std::unique_ptr<Serverport>> offen;

Serverport* Finden(int port) {
  const auto i = offen.find(port);
  return i == offen.end() ? nullptr : i->second.get();
}

int Steuern(int port, unsigned char wert) {
  Serverport* p = Finden(port);
  return p == nullptr ? -EBADF : p->Einstellen(set_control, Bytes({wert}));
}

}  // namespace

int nsio_init() { return cscAttach(); }

int nsio_end() {
  offen.clear();
  return 0;
}

int nsio_open(const std::string& host, int n, int ms) {
  const double sekunden = ms / 1000.0;
  const int socket = cscClient(host, nsio_erster_tcp_port + n, sekunden);
  if (socket < 0) return socket;
  auto port = std::make_unique<Serverport>(socket);
  const int ergebnis = port->Aushandeln(sekunden);
  if (ergebnis < 0) return ergebnis;
  int griff = 1;
  while (offen.contains(griff)) ++griff;
  offen[griff] = std::move(port);
  return griff;
}

int nsio_close(int port) { return offen.erase(port) == 1 ? 0 : -EBADF; }

int nsio_ioctl(int port, int baud, int modus) {
  Serverport* p = Finden(port);
  if (p == nullptr) return -EBADF;
  if (baud != nsio_baud_115200 || modus != nsio_acht_bits) return -EINVAL;
  struct Wert {
    unsigned char befehl;
    std::string wert;
  };
  for (const Wert& w : {Wert{set_baudrate, Bytes({0, 1, 0xC2, 0})}, Wert{set_datasize, Bytes({8})},
                        Wert{set_parity, Bytes({parity_none})}, Wert{set_stopsize, Bytes({stopsize_1})}}) {
    if (const int n = p->Einstellen(w.befehl, w.wert); n < 0) return n;
  }
  return 0;
}

int nsio_flowctrl(int port, int modus) {
  switch (modus) {
    case 0: return Steuern(port, control_ohne);
    case nsio_cts | nsio_rts: return Steuern(port, control_hardware);
    case nsio_xonxoff_senden | nsio_xonxoff_empfangen: return Steuern(port, control_xonxoff);
    default: return -EINVAL;
  }
}

int nsio_DTR(int port, int v) { return Steuern(port, v != 0 ? control_dtr_an : control_dtr_aus); }
int nsio_RTS(int port, int v) { return Steuern(port, v != 0 ? control_rts_an : control_rts_aus); }

int nsio_read(int port, char* puffer, int n) {
  Serverport* p = Finden(port);
  return p == nullptr ? -EBADF : p->Nehmen(puffer, n);
}

int nsio_leeren(int port) {
  Serverport* p = Finden(port);
  if (p == nullptr) return -EBADF;
  p->Leeren();
  return 0;
}

int nsio_write(int port, const char* bytes, int n) {
  Serverport* p = Finden(port);
  return p == nullptr ? -EBADF : p->Senden({bytes, static_cast<std::size_t>(n)});
}

int nsio_warten(int port, int ms) {
  Serverport* p = Finden(port);
  return p == nullptr ? -EBADF : p->Warten(ms);
}

}  // namespace zav
