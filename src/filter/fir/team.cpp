#include "filter/fir/team.h"

#include <omp.h>

namespace veks {

int largestTeam() {
  return omp_get_max_threads();
}

void onTeam(int most, void (*work)(void* context, int thread, int threads), void* context) {
#pragma omp parallel num_threads(most)
  work(context, omp_get_thread_num(), omp_get_num_threads());
}

}  // namespace veks
