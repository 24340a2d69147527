// Files, read and written whole.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "basis/datum.h"

namespace zav {

// How far an operation on a file came.
enum class Dateischritt {
  fertig,
  oeffnen,     // the file could not be opened or created: nothing was read or changed
  uebertragen  // reading or writing failed later
};

struct Dateiergebnis {
  Dateischritt gescheitert = Dateischritt::fertig;
  int fehler = 0;  // error number of the operating system

  explicit operator bool() const { return gescheitert == Dateischritt::fertig; }
};

// Files beyond this size are not read: some fifty times the largest project.
inline constexpr std::size_t groesste_datei = std::size_t{256} << 20;

// Reads a whole file. Where reading fails later than at opening, `bytes` holds what came before. A folder and
// a file beyond groesste_datei count as not to be opened.
Dateiergebnis Datei_lesen(const std::string& pfad, std::string& bytes);

// Replaces the content of a file, or creates it, so that whatever happens either the old or the new content
// stands there whole:
//   the bytes go to a private file in the same folder, are synced, and take the name in one rename; the
//   folder is synced. Permissions and, as far as allowed, owner and group of the old file are kept; a
//   symbolic link is followed. An old file that may not be written is not replaced. Where the folder allows
//   no second file, and for devices and pipes, the file is written in place; if that fails, the old content
//   is put back.
// `rechte` are those of a file that did not exist before, less the process's mask.
Dateiergebnis Datei_schreiben(const std::string& pfad, std::string_view bytes, unsigned rechte = 0666);

// When a file was last written, in local time; nothing where there is no such file.
struct Dateistand {
  Datum tag;
  int sekunden = 0;  // since midnight
};
std::optional<Dateistand> Datei_geschrieben(const std::string& pfad);

// German description of an error number of the operating system, without a full stop.
std::string Systemfehler_text(int fehler);

}  // namespace zav
