#include "enocean/sender.h"

#include <memory>

#include "link/protokoll.h"
#include "store/sitzung.h"

namespace zav {

namespace {

// What makes up a device's entry in its receiver's table, and its receiver.
struct Schatten {
  Feld<str, 4096> App_enocean_alt_id = projekt.App_enocean_id;
  Feld<str, 4096> App_enocean_alt_schluessel = projekt.App_enocean_schluessel;
  Feld<str, 4096> App_enocean_alt_text3 = projekt.App_enocean_text3;
  Feld<i16, 4096> App_enocean_alt_empf = projekt.App_enocean_empf;
  Feld<i16, 4096> App_enocean_alt_art = projekt.App_enocean_art;
  Feld<i16, 4096> App_enocean_alt_wert = projekt.App_enocean_wert;
  Feld<i16, 4096> App_enocean_alt_res1 = projekt.App_enocean_res1;
  Feld<i16, 4096> App_enocean_alt_res2 = projekt.App_enocean_res2;
  Feld<str, 4096> App_alt_text = projekt.App_text;

  bool gleich(int d) const {
    const Projekt& p = projekt;
    return p.App_enocean_id[d] == App_enocean_alt_id[d] &&
           p.App_enocean_schluessel[d] == App_enocean_alt_schluessel[d] &&
           p.App_enocean_text3[d] == App_enocean_alt_text3[d] &&
           p.App_enocean_art[d] == App_enocean_alt_art[d] &&
           p.App_enocean_wert[d] == App_enocean_alt_wert[d] &&
           p.App_enocean_res1[d] == App_enocean_alt_res1[d] &&
           p.App_enocean_res2[d] == App_enocean_alt_res2[d] && p.App_text[d] == App_alt_text[d];
  }
};
std::unique_ptr<const Schatten> schatten;

// A number that is no receiver, as 255 or of a damaged file, has no flag.
void Vormerken(int r) {
  if (r < 0 || r >= empfaenger || projekt.Enocean_empf_geaendert[r] != 0) return;
  projekt.Enocean_empf_geaendert[r] = 1;
  sitzung.Projekt_geaendert = 1;
}

// Storey, room and key texts of a device.
std::string Ort_in_worten(int d) {
  const int k = d / plaetze;
  std::string text = projekt.Komb_text[k] + " - " + projekt.Komb_text2[k];
  for (int n = 0; n < tastenplaetze; ++n) {
    const str& taste = projekt.Dev_text[tastenplaetze * d + n];
    if (!taste.empty()) text += " - " + taste;
  }
  return text;
}

}  // namespace

std::string Empfaenger_adresse(int r) { return Hex4(2 * r + 257); }

bool Ist_sender_id(std::string_view id) {
  return id.size() == sender_id_laenge && id.find_first_not_of("0123456789ABCDEF") == std::string_view::npos;
}

void Enocean_schatten_nehmen() { schatten = std::make_unique<const Schatten>(); }

void Enocean_abgleichen() {
  if (schatten == nullptr) return;
  for (int d = 0; d < apparate; ++d) {
    const int neu = projekt.App_enocean_empf[d];
    const int alt = schatten->App_enocean_alt_empf[d];
    if (neu != alt) {
      Vormerken(alt);
      Vormerken(neu);
    } else if (neu != kein_empfaenger && !schatten->gleich(d)) {
      Vormerken(neu);
    }
  }
  Enocean_schatten_nehmen();
}

std::string Enocean_sender_liste(int r) {
  std::string text =
      "\r\n\r\nAndere Sender-IDs, die diesem Empfänger bereits zugewiesen sind:\r\n"
      "Empfänger-Nr.: " +
      std::to_string(r) + "\r\n";
  for (int d = 0; d < apparate; ++d) {
    if (projekt.App_enocean_empf[d] != r) continue;
    text += projekt.App_enocean_schluessel[d] + "  " + projekt.App_enocean_id[d] + ": " + Ort_in_worten(d) +
            "\r\n";
  }
  return text;
}

}  // namespace zav
