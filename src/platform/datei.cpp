#include "platform/datei.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <ctime>
#include <new>
#include <system_error>

#include "platform/dateisystem.h"

namespace zav {

namespace {

constexpr std::size_t lesehappen = std::size_t{64} << 10;  // read at a time where the size is not known
constexpr int verweise_hoechstens = 40;

// An open file of the door, closed at the end of its block.
class Offen {
 public:
  explicit Offen(int d) : d_(d) {}
  ~Offen() { Schliessen(); }
  Offen(const Offen&) = delete;
  Offen& operator=(const Offen&) = delete;

  explicit operator bool() const { return d_ >= 0; }
  int nr() const { return d_; }
  // Error number of a failed opening.
  int fehler() const { return -d_; }
  int Schliessen() {
    if (d_ < 0) return 0;
    const int r = dateisystem().Schliessen(d_);
    d_ = -EBADF;
    return r;
  }

 private:
  int d_;
};

Dateiergebnis Nicht_geoeffnet(int fehler) { return {Dateischritt::oeffnen, fehler}; }
Dateiergebnis Abgebrochen(long r) { return {Dateischritt::uebertragen, static_cast<int>(-r)}; }

std::string Ordner_von(const std::string& pfad) { return pfad.substr(0, pfad.rfind('/') + 1); }

// The file that a path means in the end, behind all symbolic links; 0 or a negative error number.
int Verweisen_folgen(std::string& pfad) {
  std::string ziel;
  for (int n = 0; n < verweise_hoechstens; ++n) {
    if (dateisystem().Verweis(pfad, ziel) < 0) return 0;  // no link, or a fault that opening will find
    if (!ziel.starts_with('/')) ziel.insert(0, Ordner_von(pfad));
    pfad = ziel;
  }
  return -ELOOP;
}

int Alles_schreiben(int d, std::string_view bytes) {
  while (!bytes.empty()) {
    const long n = dateisystem().Schreiben(d, bytes.data(), bytes.size());
    if (n < 0) return static_cast<int>(n);
    bytes.remove_prefix(static_cast<std::size_t>(n));
  }
  return 0;
}

mode_t Rechte_maske() {
  const mode_t maske = ::umask(0);
  ::umask(maske);
  return maske;
}

// True where it is the folder or the file system that forbids, not a fault of the disk.
bool Verboten(int r) { return r == -EACCES || r == -EPERM || r == -EROFS; }

// A file system without permissions of its own (a memory stick) refuses to set them; that is no failure.
int Rechte_setzen(int d, mode_t rechte) {
  const int r = dateisystem().Rechte_setzen(d, rechte);
  return r == -EPERM || r == -ENOTSUP || r == -ENOSYS ? 0 : r;
}

// Owner first: a change of owner may take permissions away. That not everyone may give files away is no
// failure.
int Wie_vorher(int d, const struct stat& alt) {
  Dateisystem& fs = dateisystem();
  if (fs.Besitzer_setzen(d, alt.st_uid, alt.st_gid) < 0)
    fs.Besitzer_setzen(d, static_cast<uid_t>(-1), alt.st_gid);
  return Rechte_setzen(d, alt.st_mode & 07777);
}

// Steps of a write that end with the first failure.
template <class... Schritt>
int Nacheinander(Schritt... schritt) {
  int r = 0;
  static_cast<void>(((r = schritt(), r >= 0) && ...));
  return std::min(r, 0);
}

// Replaces a regular file by writing over it; on failure its old content comes back.
Dateiergebnis An_ort_schreiben(const std::string& pfad, Offen& datei, bool regulaer, std::string_view bytes) {
  Dateisystem& fs = dateisystem();
  const auto inhalt = [&](std::string_view neu) {
    return Nacheinander(
        [&] { return fs.An_den_anfang(datei.nr()); }, [&] { return Alles_schreiben(datei.nr(), neu); },
        [&] { return fs.Kuerzen(datei.nr(), neu.size()); }, [&] { return fs.Festschreiben(datei.nr()); });
  };
  if (!regulaer) {
    const int r =
        Nacheinander([&] { return Alles_schreiben(datei.nr(), bytes); }, [&] { return datei.Schliessen(); });
    return r < 0 ? Abgebrochen(r) : Dateiergebnis{};
  }
  std::string alt;
  if (const Dateiergebnis gelesen = Datei_lesen(pfad, alt); !gelesen) return Nicht_geoeffnet(gelesen.fehler);
  if (const int r = inhalt(bytes); r < 0) {
    inhalt(alt);
    return Abgebrochen(r);
  }
  const int r = datei.Schliessen();
  return r < 0 ? Abgebrochen(r) : Dateiergebnis{};
}

// The new name is on the disk once the folder is. Some file systems cannot sync folders; those need not.
int Ordner_festschreiben(const std::string& ordner) {
  const Offen offen(dateisystem().Oeffnen(ordner.empty() ? "." : ordner, O_RDONLY | O_DIRECTORY));
  if (!offen) return 0;
  const int r = dateisystem().Festschreiben(offen.nr());
  return r == -EINVAL || r == -ENOTSUP ? 0 : r;
}

}  // namespace

Dateiergebnis Datei_lesen(const std::string& pfad, std::string& bytes) {
  Dateisystem& fs = dateisystem();
  bytes.clear();
  const Offen datei(fs.Oeffnen(pfad, O_RDONLY));
  if (!datei) return Nicht_geoeffnet(datei.fehler());
  struct stat stand {};
  if (const int r = fs.Stand(datei.nr(), stand); r < 0) return Nicht_geoeffnet(-r);
  if (S_ISDIR(stand.st_mode)) return Nicht_geoeffnet(EISDIR);
  const std::size_t erwartet = S_ISREG(stand.st_mode) ? static_cast<std::size_t>(stand.st_size) : 0;

  // One byte more than expected, so that the end is seen without growing once more.
  std::size_t gelesen = 0;
  long n = 0;
  try {
    if (erwartet > groesste_datei) return Nicht_geoeffnet(EFBIG);
    bytes.resize(erwartet + 1);
    while ((n = fs.Lesen(datei.nr(), bytes.data() + gelesen, bytes.size() - gelesen)) > 0) {
      gelesen += static_cast<std::size_t>(n);
      if (gelesen > groesste_datei) {
        bytes.clear();
        return Nicht_geoeffnet(EFBIG);
      }
      if (gelesen == bytes.size()) bytes.resize(std::max(2 * gelesen, lesehappen));
    }
  } catch (const std::bad_alloc&) {
    n = -ENOMEM;
  }
  bytes.resize(gelesen);
  return n < 0 ? Abgebrochen(n) : Dateiergebnis{};
}

Dateiergebnis Datei_schreiben(const std::string& pfad, std::string_view bytes, unsigned rechte) {
  Dateisystem& fs = dateisystem();
  std::string ziel = pfad;
  if (const int r = Verweisen_folgen(ziel); r < 0) return Nicht_geoeffnet(-r);

  Offen alt(fs.Oeffnen(ziel, O_WRONLY));
  struct stat stand {};
  if (!alt && alt.fehler() != ENOENT) return Nicht_geoeffnet(alt.fehler());
  if (alt) {
    if (const int r = fs.Stand(alt.nr(), stand); r < 0) return Nicht_geoeffnet(-r);
    if (!S_ISREG(stand.st_mode)) return An_ort_schreiben(ziel, alt, false, bytes);
  }

  std::string nachbar = Ordner_von(ziel) + ".zav-";
  Offen neu(fs.Privat_anlegen(nachbar));
  if (!neu) {
    return alt && Verboten(-neu.fehler()) ? An_ort_schreiben(ziel, alt, true, bytes)
                                          : Nicht_geoeffnet(neu.fehler());
  }

  const int r = Nacheinander(
      [&] { return Alles_schreiben(neu.nr(), bytes); },
      [&] { return alt ? Wie_vorher(neu.nr(), stand) : Rechte_setzen(neu.nr(), rechte & ~Rechte_maske()); },
      [&] { return fs.Festschreiben(neu.nr()); }, [&] { return neu.Schliessen(); });
  const int u = r < 0 ? r : fs.Umbenennen(nachbar, ziel);
  if (u < 0) {
    fs.Entfernen(nachbar);
    // In a shared folder the old file may be written but not replaced.
    return r >= 0 && alt && Verboten(u) ? An_ort_schreiben(ziel, alt, true, bytes) : Abgebrochen(u);
  }
  const int o = Ordner_festschreiben(Ordner_von(ziel));
  return o < 0 ? Abgebrochen(o) : Dateiergebnis{};
}

std::optional<Dateistand> Datei_geschrieben(const std::string& pfad) {
  struct stat stand {};
  std::tm ort{};
  if (stat(pfad.c_str(), &stand) != 0 || localtime_r(&stand.st_mtime, &ort) == nullptr) return std::nullopt;
  return Dateistand{.tag = {ort.tm_year + 1900, ort.tm_mon + 1, ort.tm_mday},
                    .sekunden = (ort.tm_hour * 60 + ort.tm_min) * 60 + ort.tm_sec};
}

std::string Systemfehler_text(int fehler) {
  static constexpr struct {
    int nr;
    const char* text;
  } texte[] = {
      {EPERM, "Der Vorgang ist nicht erlaubt"},
      {ENOENT, "Datei oder Ordner nicht gefunden"},
      {EINTR, "Der Vorgang wurde unterbrochen"},
      {EIO, "Ein- oder Ausgabefehler des Datenträgers"},
      {ENXIO, "Kein solches Gerät"},
      {ENOMEM, "Zu wenig Arbeitsspeicher"},
      {EACCES, "Keine Berechtigung"},
      {EBUSY, "Das Gerät ist belegt"},
      {EEXIST, "Die Datei existiert bereits"},
      {ENODEV, "Kein solches Gerät"},
      {ENOTDIR, "Ein Teil des Pfades ist kein Ordner"},
      {EISDIR, "Der Name gehört einem Ordner"},
      {EINVAL, "Ungültige Angabe"},
      {ENFILE, "Zu viele Dateien sind offen"},
      {EMFILE, "Zu viele Dateien sind offen"},
      {ETXTBSY, "Die Datei wird gerade ausgeführt"},
      {EFBIG, "Die Datei ist zu gross"},
      {ENOSPC, "Kein Speicherplatz mehr frei"},
      {EROFS, "Der Datenträger ist schreibgeschützt"},
      {EPIPE, "Die Gegenseite hat die Verbindung geschlossen"},
      {ENAMETOOLONG, "Der Dateiname ist zu lang"},
      {ELOOP, "Zu viele symbolische Verknüpfungen"},
      {EDQUOT, "Der zugeteilte Speicherplatz ist aufgebraucht"},
      {ESTALE, "Der Netzwerkordner ist nicht mehr erreichbar"},
      {ETIMEDOUT, "Zeitüberschreitung"},
      {ECONNREFUSED, "Die Verbindung wurde abgelehnt"},
      {ECONNRESET, "Die Gegenseite hat die Verbindung abgebrochen"},
      {EHOSTUNREACH, "Der Rechner ist nicht erreichbar"},
      {ENETUNREACH, "Das Netzwerk ist nicht erreichbar"},
  };
  const auto* const t =
      std::find_if(std::begin(texte), std::end(texte), [&](const auto& e) { return e.nr == fehler; });
  return t != std::end(texte) ? t->text : std::generic_category().message(fehler);
}

}  // namespace zav
