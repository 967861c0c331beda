// The threads of the OpenMP runtime.
#ifndef VEKS_FILTER_FIR_TEAM_H
#define VEKS_FILTER_FIR_TEAM_H

namespace veks {

// The most threads that a team of this thread's would have.
int largestTeam();

// work(context, thread, threads) on each thread of a team of at most `most`; once, with threads =
// 1, where the runtime has no more. Returns when all are done.
void onTeam(int most, void (*work)(void* context, int thread, int threads), void* context);

// The same for anything that can be called with (thread, threads).
template <class Work>
inline void onTeam(int most, const Work& work) {
  // A team of one would take some hundred nanoseconds.
  if (most <= 1) {
    work(0, 1);
    return;
  }
  const auto call = [](void* context, int thread, int threads) {
    (*static_cast<const Work*>(context))(thread, threads);
  };
  onTeam(most, call, const_cast<Work*>(&work));
}

}  // namespace veks

#endif
