// The clocks of the benchmarks.
#pragma once

#include <chrono>
#include <ctime>

namespace zav {

using Uhr = std::chrono::steady_clock;

inline double Sekunden_seit(Uhr::time_point beginn) {
  return std::chrono::duration<double>(Uhr::now() - beginn).count();
}
// Seconds that the work takes.
double Sekunden(auto&& arbeit) {
  const auto beginn = Uhr::now();
  arbeit();
  return Sekunden_seit(beginn);
}
// Seconds of processor time that this thread has worked so far.
inline double Arbeitszeit() {
  timespec t{};
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &t);
  return static_cast<double>(t.tv_sec) + 1e-9 * static_cast<double>(t.tv_nsec);
}

}  // namespace zav
