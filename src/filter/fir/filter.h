// Filtering with a state: sums of products, or transforms.
#ifndef VEKS_FILTER_FIR_FILTER_H
#define VEKS_FILTER_FIR_FILTER_H

#include "core/targets.h"
#include "filter/fir/make.h"

namespace veks {

// Longer blocks are for the team.
constexpr size_t kMostAlone = 1600;

// Multiplications that are worth a thread: waking one takes some microseconds, and as long as the
// system likes if the processors are busy.
constexpr uint64_t kProductsPerThread = 1 << 21;

// What a sample through transforms is worth, whatever their length.
constexpr uint64_t kProductsOfTransforms = 128;

// Threads for n samples of so many products each.
template <class Data>
inline int teamFor(uint64_t n, uint64_t products) {
  constexpr uint64_t kLanes = LanesOf<Data>::kLanes;
  const uint64_t worth = 1 + n * products * (kLanes * kLanes) / kProductsPerThread;
  return static_cast<int>(std::min<uint64_t>(worth, static_cast<uint64_t>(largestTeam())));
}

// Bytes of an array on the stack, of which a call has up to five.
constexpr size_t kTileBytes = 4096;

template <class T>
constexpr size_t kTile = kTileBytes / sizeof(T);

template <class T>
inline void addProduct(T tap, T x, T* sum) {
  *sum += tap * x;
}
inline void addProduct(Vek32fc tap, Vek32fc x, Vek32fc* sum) {
  sum->re += tap.re * x.re - tap.im * x.im;
  sum->im += tap.re * x.im + tap.im * x.re;
}
inline void addProduct(Vek64fc tap, Vek64fc x, Vek64fc* sum) {
  sum->re += tap.re * x.re - tap.im * x.im;
  sum->im += tap.re * x.im + tap.im * x.re;
}

template <class T>
inline void addTo(T* sums, const T* more, size_t n) {
  using Lane = typename LanesOf<T>::Lane;
  Lane* const to = reinterpret_cast<Lane*>(sums);
  const Lane* const from = reinterpret_cast<const Lane*>(more);
  for (size_t i = 0; i < n * LanesOf<T>::kLanes; ++i) to[i] += from[i];
}

// The scale factor of sums of products with integer taps.
inline int scaleByTaps(int tapsFactor, int scaleFactor) {
  const int64_t shift = int64_t{tapsFactor} - scaleFactor;
  return -static_cast<int>(std::clamp<int64_t>(shift, -31, 31));
}

// The same for taps of 16 bits in Q15.
inline int scaleQ15(int scaleFactor) {
  return static_cast<int>(std::min<int64_t>(int64_t{scaleFactor} + 15, INT_MAX));
}

// Up to kTile<T> results of any number of taps, a tile of them at a time.
// loadWindow(position, dst, n): samples of the window; tapsAt(position, n): reversed taps.
template <class T, class LoadWindow, class TapsAt>
inline void sumTile(size_t tapsLen, T* results, size_t n, const LoadWindow& loadWindow,
                    const TapsAt& tapsAt) {
  T window[2 * kTile<T>];
  T more[kTile<T>];
  for (size_t k = 0; k < tapsLen; k += kTile<T>) {
    const size_t count = std::min(kTile<T>, tapsLen - k);
    loadWindow(k, window, n + count - 1);
    sumProducts(tapsAt(k, count), count, window, k == 0 ? results : more, n);
    if (k != 0) addTo(results, more, n);
  }
}

// Results from samples as the state keeps them: `history` is tapsLen before the first result's own.
template <class T>
inline void filterKept(const FirFloatState<T>& state, const T* history, T* dst, size_t n, int) {
  sumProducts(state.reversedTaps, state.taps(), history + 1, dst, n);
}

template <class T, class Data>
inline void filterKept(const FirFloatState<T>& state, const T* history, Data* dst, size_t n,
                       int scaleFactor) {
  T results[kTile<T>];
  for (size_t i = 0; i < n; i += kTile<T>) {
    const size_t count = std::min(kTile<T>, n - i);
    sumProducts(state.reversedTaps, state.taps(), history + i + 1, results, count);
    store(results, dst + i, count, scaleFactor);
  }
}

template <class Tap, class Sample>
inline void filterKept(const FirIntegerState<Tap, Sample>& state, const Sample* history,
                       Sample* dst, size_t n, int scaleFactor) {
  Tap sums[kTile<Tap>];
  Tap extra[kTile<Tap>];
  for (size_t i = 0; i < n; i += kTile<Tap>) {
    const size_t count = std::min(kTile<Tap>, n - i);
    state.pairs.sum(history + i, sums, extra, count);
    store(sums, dst + i, count, scaleByTaps(state.tapsFactor, scaleFactor));
  }
}

// The same from samples as the caller has them.
template <class T, class Data>
inline void filterData(const FirFloatState<T>& state, const Data* history, Data* dst, size_t n,
                       int scaleFactor) {
  if constexpr (std::is_same_v<T, Data>) {
    filterKept(state, history, dst, n, scaleFactor);
  } else {
    T results[kTile<T>];
    for (size_t i = 0; i < n; i += kTile<T>) {
      const size_t count = std::min(kTile<T>, n - i);
      const auto loadWindow = [&](size_t k, T* window, size_t samples) {
        load(history + i + 1 + k, window, samples);
      };
      const auto tapsAt = [&](size_t k, size_t) { return state.reversedTaps + k; };
      sumTile(state.taps(), results, count, loadWindow, tapsAt);
      store(results, dst + i, count, scaleFactor);
    }
  }
}

template <class Tap, class Sample>
inline void filterData(const FirIntegerState<Tap, Sample>& state, const Sample* history,
                       Sample* dst, size_t n, int scaleFactor) {
  filterKept(state, history, dst, n, scaleFactor);
}

// The history after n more samples, of which the line holds the first blockLen() behind its own.
template <class State, class Data>
inline void moveHistory(State* state, const Data* src, size_t n) {
  const size_t taps = state->taps();
  if (n < taps) {
    std::memmove(state->line, state->history() + n, taps * sizeof(*state->line));
  } else {
    load(src + (n - taps), state->line, taps);
  }
  state->index = 0;
}

template <class State, class Data>
inline void filterDirectly(State* state, const Data* src, Data* dst, size_t n, int scaleFactor) {
  const size_t first = std::min(n, state->blockLen());
  auto* const history = state->history();
  load(src, history + state->taps(), first);
  filterKept(*state, history, dst, first, scaleFactor);
  moveHistory(state, src, n);
  if (n == first) return;
  const Data* const restHistory = src + (first - state->taps());
  Data* const rest = dst + first;
  const auto filterRest = [&](size_t from, size_t count) {
    if (count != 0) filterData(*state, restHistory + from, rest + from, count, scaleFactor);
  };
  if (n <= kMostAlone) {
    filterRest(0, n - first);
    return;
  }
  onTeam(teamFor<Data>(n - first, state->taps()), [&](int thread, int threads) {
    const size_t t = static_cast<size_t>(thread);
    const size_t chunk = (n - first) / static_cast<size_t>(threads);
    const bool isLast = thread == threads - 1;
    filterRest(t * chunk, isLast ? n - first - t * chunk : chunk);
  });
}

// Signals whose results take so many bytes leave the second cache before anyone reads them.
constexpr size_t kPastCachesBytes = size_t{4} << 20;

// A frame of `samples` samples: those that it shares with the one before, and the new ones. A null
// source stands for samples that are in the thread's frame already. The thread's next frame is at
// `next`.
template <class T, class Data>
inline VekStatus filterFrame(const FirFloatState<T>& state, const Data* src, size_t samples,
                             const Data* next, Data* dst, bool pastCaches, int thread,
                             int scaleFactor) {
  using Fft = FirFft<T>;
  const FirTransform<T>& transform = state.transform;
  const size_t length = static_cast<size_t>(transform.length);
  T* const frame = transform.frame(thread);
  Vek8u* const work = transform.workOf(thread);
  const T* whole = frame;
  if constexpr (std::is_same_v<T, Data>) {
    if (src != nullptr && samples == length) whole = src;
  }
  if (whole == frame) {
    if (src != nullptr) load(src, frame, samples);
    std::fill(frame + samples, frame + length, T{});
  }
  const size_t shared = transform.sharedSamples(state.taps());
  if (transform.convolution != nullptr) {
    if constexpr (std::is_same_v<T, Data>) {
      if (samples == length) {
        transform.convolve(whole, next, shared, dst, pastCaches, thread);
        return vekStsOk;
      }
    }
    transform.convolve(frame, frame, shared, frame, false, thread);
    store(frame, dst, samples - shared, scaleFactor);
    return vekStsOk;
  }
  VekStatus status = Fft::forward(whole, frame, transform.context, work);
  if (status == vekStsOk) status = Fft::multiply(transform.spectrum, frame, transform.length);
  if (status == vekStsOk) status = Fft::inverse(frame, frame, transform.context, work);
  if (status == vekStsOk) store(frame + shared, dst, samples - shared, scaleFactor);
  return status;
}

template <class T, class Data>
inline VekStatus filterByTransforms(FirFloatState<T>* state, const Data* src, Data* dst, size_t n,
                                    int scaleFactor) {
  const FirTransform<T>& transform = state->transform;
  const size_t length = static_cast<size_t>(transform.length);
  const size_t shared = transform.sharedSamples(state->taps());
  const size_t step = length - shared;
  T* const firstFrame = transform.frame(0);
  const size_t older = state->taps() - 1;
  std::fill(firstFrame, firstFrame + (shared - older), T{});
  std::copy(state->history() + 1, state->history() + state->taps(), firstFrame + (shared - older));
  load(src, firstFrame + shared, step);
  moveHistory(state, src, n);
  const bool pastCaches = n >= std::min(kPastCachesBytes, streamingBytes) / sizeof(Data);
  const size_t frames = (n - 1) / step + 1;
  const auto frameAt = [&](size_t frame) {
    return frame == 0 ? nullptr : src + (frame * step - shared);
  };
  const auto filterNth = [&](size_t frame, size_t next, int thread) {
    const size_t start = frame * step;
    const size_t samples = shared + std::min(step, n - start);
    return filterFrame(*state, frameAt(frame), samples, frameAt(next), dst + start, pastCaches,
                       thread, scaleFactor);
  };
  // Runs, because consecutive frames share samples, and lines of results. The frame of thread 0 has
  // the first samples already.
  const auto filterRun = [&](int thread, int threads) {
    const size_t t = static_cast<size_t>(thread);
    const size_t least = frames / static_cast<size_t>(threads);
    const size_t longer = frames % static_cast<size_t>(threads);
    const size_t end = (t + 1) * least + std::min(t + 1, longer);
    VekStatus status = vekStsOk;
    for (size_t i = t * least + std::min(t, longer); i < end && status == vekStsOk; ++i) {
      status = filterNth(i, std::min(i + 1, frames - 1), thread);
    }
    if (pastCaches) finishResults();
    transform.statuses[thread] = status;
  };
  std::fill(transform.statuses, transform.statuses + transform.threads, vekStsOk);
  if (n <= kMostAlone) {
    filterRun(0, 1);
  } else {
    const int team = teamFor<Data>(n, kProductsOfTransforms);
    onTeam(std::min(transform.threads, team), filterRun);
  }
  return *std::min_element(transform.statuses, transform.statuses + transform.threads);
}

template <class T, class Data>
inline VekStatus filterBlock(FirFloatState<T>* state, const Data* src, Data* dst, size_t n,
                             int scaleFactor) {
  const FirTransform<T>& transform = state->transform;
  if (transform.context != nullptr && n > static_cast<size_t>(transform.length)) {
    return filterByTransforms(state, src, dst, n, scaleFactor);
  }
  filterDirectly(state, src, dst, n, scaleFactor);
  return vekStsOk;
}

template <class Tap, class Sample>
inline VekStatus filterBlock(FirIntegerState<Tap, Sample>* state, const Sample* src, Sample* dst,
                             size_t n, int scaleFactor) {
  filterDirectly(state, src, dst, n, scaleFactor);
  return vekStsOk;
}

template <class Handle, class Data>
inline VekStatus firFilter(const Data* src, Data* dst, int numIters, Handle* handle,
                           int scaleFactor = 0) {
  if (handle == nullptr || src == nullptr || dst == nullptr) return vekErrNullPtr;
  if (numIters < 1) return vekErrSize;
  const VekStatus status = checkState(handle);
  if (status != vekStsOk) return status;
  return filterBlock(stateOf(handle), src, dst, static_cast<size_t>(numIters), scaleFactor);
}

template <class Handle, class Data>
inline VekStatus firFilterInPlace(Data* srcDst, int numIters, Handle* handle, int scaleFactor = 0) {
  if (handle == nullptr || srcDst == nullptr) return vekErrNullPtr;
  if (numIters < 1) return vekErrSize;
  VekStatus status = checkState(handle);
  auto* const state = stateOf(handle);
  const size_t n = static_cast<size_t>(numIters);
  for (size_t i = 0; i < n && status == vekStsOk; i += kWorkSamples) {
    const size_t count = std::min(kWorkSamples, n - i);
    Data* const results = reinterpret_cast<Data*>(state->work);
    status = filterBlock(state, srcDst + i, results, count, scaleFactor);
    if (status == vekStsOk) std::copy(results, results + count, srcDst + i);
  }
  return status;
}

// How many of the older samples of a result are taken by vectors. A vector with a sample in it that
// a call has just stored by itself, masked or not, can only be loaded when that has reached the
// cache, after all that the call before still computes. Up to some length it is faster to leave the
// last ones out, one product at a time, and to take whole vectors of the others. Complex products
// are too slow for that.
template <class T>
inline size_t takenByVectors(size_t older) {
  constexpr size_t kFew = 12;
  constexpr size_t kMany = 256;
  constexpr size_t kRecent = 8;
  constexpr size_t kWhole = 64 / sizeof(T);
  if (LanesOf<T>::kLanes == 2 || older >= kMany) return older < kFew ? 0 : older;
  return older < kRecent ? 0 : (older - kRecent) / kWhole * kWhole;
}

// The result of a sample that the history does not have yet.
template <class T>
inline T resultOf(const FirFloatState<T>& state, const T* history, T sample) {
  const size_t older = state.taps() - 1;
  const T* const taps = state.reversedTaps;
  T sum = {};
  size_t k = takenByVectors<T>(older);
  if (k != 0) sumProducts(taps, k, history + 1, &sum, 1);
  for (; k < older; ++k) addProduct(taps[k], history[1 + k], &sum);
  addProduct(taps[older], sample, &sum);
  return sum;
}

template <class T, class Data>
inline void filterOne(const FirFloatState<T>& state, T* history, Data src, Data* dst,
                      int scaleFactor) {
  T sample;
  load(&src, &sample, 1);
  const T result = resultOf(state, history, sample);
  history[0] = history[state.taps()] = sample;
  store(&result, dst, 1, scaleFactor);
}

template <class Tap, class Sample>
inline void filterOne(const FirIntegerState<Tap, Sample>& state, Sample* history, Sample src,
                      Sample* dst, int scaleFactor) {
  history[state.taps()] = src;
  filterKept(state, history, dst, 1, scaleFactor);
  history[0] = src;
}

template <class Handle, class Data>
inline VekStatus firOne(Data src, Data* result, Handle* handle, int scaleFactor = 0) {
  if (handle == nullptr || result == nullptr) return vekErrNullPtr;
  const VekStatus status = checkState(handle);
  if (status != vekStsOk) return status;
  auto* const state = stateOf(handle);
  filterOne(*state, state->history(), src, result, scaleFactor);
  state->index = state->index + 1 == state->tapsLen ? 0 : state->index + 1;
  return vekStsOk;
}

}  // namespace veks

#endif
