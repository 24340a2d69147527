#include "time/sequenzplan.h"

#include <algorithm>

namespace zav {

namespace {

// Leap years are at most eight years apart: a yearly sequence has started within as many years, or never
// will.
constexpr int jahre_zurueck = 8;

struct Beginn {
  Datum tag;
  int uhr;
};

std::vector<Beginn> Beginne(std::span<const Sequenz> sequenzen, int jahr) {
  std::vector<Beginn> beginne;
  for (const Sequenz& s : sequenzen) {
    if (!s.jedes_jahr) {
      beginne.push_back({s.ab, s.uhr});
      continue;
    }
    for (int j = jahr - jahre_zurueck; j <= jahr; ++j) {
      if (s.ab.tag <= Tage_im_monat(j, s.ab.monat)) beginne.push_back({{j, s.ab.monat, s.ab.tag}, s.uhr});
    }
  }
  std::ranges::stable_sort(beginne, {}, &Beginn::tag);
  return beginne;
}

}  // namespace

std::vector<Sequenztag> Sequenzplan(std::span<const Sequenz> sequenzen, int jahr) {
  std::vector<Sequenztag> plan(static_cast<std::size_t>(Tag_des_jahres({jahr, 12, 31})));
  for (const Beginn& b : Beginne(sequenzen, jahr)) {
    if (b.tag.jahr > jahr) break;
    const int tag = b.tag.jahr < jahr ? 0 : Tag_des_jahres(b.tag) - 1;
    std::fill(plan.begin() + tag, plan.end(), Sequenztag{.uhr = b.uhr});
    plan[static_cast<std::size_t>(tag)].beginn = b.tag.jahr == jahr;
  }
  return plan;
}

}  // namespace zav
