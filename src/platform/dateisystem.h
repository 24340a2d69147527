// The door to the file system: one thin call for each thing that reading and writing whole files needs. This
// class is the real one; tests derive from it to make a call fail.
#pragma once

#include <sys/stat.h>

#include <cstddef>
#include <string>

namespace zav {

// Every call returns 0 or more, or the negative error number of the operating system. Interrupted calls are
// repeated. A descriptor goes no further than the functions of datei.h.
class Dateisystem {
 public:
  virtual ~Dateisystem() = default;

  // Descriptor of a file, opened with the flags of open(2), never inherited by children and without waiting
  // for the other end of a pipe.
  virtual int Oeffnen(const std::string& pfad, int art);
  // Creates a new private file (mode 0600) whose name begins with `anfang`; the name made comes back in it.
  virtual int Privat_anlegen(std::string& anfang);
  virtual int Stand(int d, struct stat& stand);
  // What a symbolic link points to; -EINVAL for what is none.
  virtual int Verweis(const std::string& pfad, std::string& ziel);
  // Bytes read or written, possibly fewer than asked for; 0 at the end of the file.
  virtual long Lesen(int d, char* ziel, std::size_t n);
  virtual long Schreiben(int d, const char* bytes, std::size_t n);
  virtual int An_den_anfang(int d);
  virtual int Kuerzen(int d, std::size_t n);
  virtual int Besitzer_setzen(int d, uid_t besitzer, gid_t gruppe);
  virtual int Rechte_setzen(int d, mode_t rechte);
  // Waits until everything written stands on the disk.
  virtual int Festschreiben(int d);
  virtual int Schliessen(int d);
  virtual int Umbenennen(const std::string& von, const std::string& nach);
  virtual int Entfernen(const std::string& pfad);
};

// The file system of this process.
Dateisystem& dateisystem();
// Puts another in its place; nullptr brings the real one back. Returns the one before, or nullptr.
Dateisystem* Dateisystem_setzen(Dateisystem* d);

}  // namespace zav
