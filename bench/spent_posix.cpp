#include <sys/resource.h>

#include "bench/spent.h"

namespace glonks {

Spent spentSoFar() {
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  return {static_cast<double>(usage.ru_utime.tv_sec + usage.ru_stime.tv_sec) +
              static_cast<double>(usage.ru_utime.tv_usec + usage.ru_stime.tv_usec) * 1e-6,
          static_cast<double>(usage.ru_maxrss) * 1024, static_cast<double>(usage.ru_nvcsw)};
}

}  // namespace glonks
