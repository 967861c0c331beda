// Making, releasing and changing states.
#ifndef VEKS_FILTER_FIR_MAKE_H
#define VEKS_FILTER_FIR_MAKE_H

#include <climits>

#include "core/memory.h"
#include "filter/fir/rows.h"
#include "veks/core/services.h"
#include "veks/status.h"

namespace veks {

// What is in the caller's buffer is aligned to this, as the documented sizes tell.
constexpr size_t kCallersAlignment = 16;
constexpr size_t kOwnAlignment = 64;

template <class Handle>
inline auto* stateOf(Handle* handle) {
  return reinterpret_cast<typename FirRow<Handle>::State*>(handle);
}
template <class Handle>
inline const auto* stateOf(const Handle* handle) {
  return reinterpret_cast<const typename FirRow<Handle>::State*>(handle);
}

template <class Handle>
inline VekStatus checkState(const Handle* handle) {
  if (handle == nullptr) return vekErrNullPtr;
  return stateOf(handle)->id == FirRow<Handle>::kId ? vekStsOk : vekErrContextMatch;
}

template <class Handle>
inline uint64_t callersBytes(uint64_t tapsLen) {
  using State = typename FirRow<Handle>::State;
  Layout layout(nullptr, kCallersAlignment);
  layout.take<State>(1);
  State::piecesOf(&layout, static_cast<size_t>(tapsLen));
  return layout.bytes();
}

inline uint64_t alignedTo16(uint64_t bytes) {
  return (bytes + 15) / 16 * 16;
}

// The documented sizes.
template <>
inline uint64_t callersBytes<VeksFIRState_32f>(uint64_t tapsLen) {
  const uint64_t threads = static_cast<uint64_t>(largestTeam());
  return alignedTo16(12 * tapsLen + 16) + 5 * alignedTo16(4 * tapsLen) + 112 + 16 * threads + 16384;
}
template <>
inline uint64_t callersBytes<VeksFIRState_32fc>(uint64_t tapsLen) {
  const uint64_t threads = static_cast<uint64_t>(largestTeam());
  return alignedTo16(24 * tapsLen + 32) + 13 * alignedTo16(8 * tapsLen) + 208 + 16 * threads +
         32768;
}

template <class Handle>
inline VekStatus firStateSize(int tapsLen, int* size) {
  if (size == nullptr) return vekErrNullPtr;
  if (tapsLen < 1) return vekErrFIRLen;
  const uint64_t bytes = callersBytes<Handle>(static_cast<uint64_t>(tapsLen));
  if (bytes > INT_MAX) return vekErrSize;
  *size = static_cast<int>(bytes);
  return vekStsOk;
}

template <class State, class Data>
inline void setLine(State* state, const Data* line) {
  state->index = 0;
  using Kept = std::remove_pointer_t<decltype(state->line)>;
  if (line == nullptr) {
    std::fill(state->line, state->line + state->taps(), Kept{});
    return;
  }
  load(line, state->line, state->taps());
  std::reverse(state->line, state->line + state->taps());
}

// The state with its pieces in a block, without its taps.
template <class Handle, class Data>
inline auto* buildState(Layout* layout, int tapsLen, const Data* line) {
  using State = typename FirRow<Handle>::State;
  State* const state = layout->take<State>(1);
  *state = State::piecesOf(layout, static_cast<size_t>(tapsLen));
  state->id = FirRow<Handle>::kId;
  state->tapsLen = tapsLen;
  setLine(state, line);
  return state;
}

// setTaps(state) gives a status.
template <class Handle, class Data, class SetTaps>
inline VekStatus initState(Handle** handle, int tapsLen, const Data* line, Vek8u* buffer,
                           const SetTaps& setTaps) {
  Layout layout(buffer, kCallersAlignment);
  auto* const state = buildState<Handle>(&layout, tapsLen, line);
  setTaps(state);
  *handle = reinterpret_cast<Handle*>(state);
  return vekStsOk;
}

template <class Handle>
inline void releaseState(Handle* handle) {
  auto* const state = stateOf(handle);
  state->transform.release();
  state->id = 0;
  veksFree(state->block);
}

template <class Handle, class Data, class SetTaps>
inline VekStatus allocateState(Handle** handle, int tapsLen, const Data* line,
                               const SetTaps& setTaps) {
  using State = typename FirRow<Handle>::State;
  typename State::Transform transform = {};
  VekStatus status = transform.make(tapsLen);
  if (status != vekStsOk) return status;
  Layout counter(nullptr, kOwnAlignment);
  counter.take<State>(1);
  State::piecesOf(&counter, static_cast<size_t>(tapsLen));
  transform.takePieces(&counter);
  const bool isPossible = counter.bytes() <= SIZE_MAX / 2;
  void* const block = isPossible ? allocate(static_cast<size_t>(counter.bytes())) : nullptr;
  if (block == nullptr) {
    transform.release();
    return vekErrMemAllocTooSmall;
  }
  Layout layout(block, kOwnAlignment);
  State* const state = buildState<Handle>(&layout, tapsLen, line);
  state->block = block;
  state->transform = transform;
  state->transform.takePieces(&layout);
  status = setTaps(state);
  if (status != vekStsOk) {
    releaseState(reinterpret_cast<Handle*>(state));
    return status;
  }
  *handle = reinterpret_cast<Handle*>(state);
  return vekStsOk;
}

template <class Handle, class Tap, class Data>
inline VekStatus firInit(Handle** handle, const Tap* taps, int tapsLen, const Data* line,
                         Vek8u* buffer) {
  if (handle == nullptr || taps == nullptr || buffer == nullptr) return vekErrNullPtr;
  if (tapsLen < 1) return vekErrFIRLen;
  return initState(handle, tapsLen, line, buffer,
                   [=](auto* state) { return state->setTaps(taps); });
}

template <class Handle, class Tap, class Data>
inline VekStatus firInitAlloc(Handle** handle, const Tap* taps, int tapsLen, const Data* line) {
  if (handle == nullptr || taps == nullptr) return vekErrNullPtr;
  if (tapsLen < 1) return vekErrFIRLen;
  return allocateState(handle, tapsLen, line, [=](auto* state) { return state->setTaps(taps); });
}

template <class Handle>
inline VekStatus firFree(Handle* handle) {
  const VekStatus status = checkState(handle);
  if (status == vekStsOk && stateOf(handle)->block != nullptr) releaseState(handle);
  return status;
}

template <class Handle, class Tap>
inline VekStatus firGetTaps(const Handle* handle, Tap* taps) {
  if (handle == nullptr || taps == nullptr) return vekErrNullPtr;
  const VekStatus status = checkState(handle);
  if (status == vekStsOk) stateOf(handle)->getTaps(taps);
  return status;
}

template <class Handle, class Tap>
inline VekStatus firSetTaps(const Tap* taps, Handle* handle) {
  if (taps == nullptr || handle == nullptr) return vekErrNullPtr;
  const VekStatus status = checkState(handle);
  return status != vekStsOk ? status : stateOf(handle)->setTaps(taps);
}

template <class Handle, class Data>
inline VekStatus firGetLine(const Handle* handle, Data* line) {
  if (handle == nullptr || line == nullptr) return vekErrNullPtr;
  const VekStatus status = checkState(handle);
  if (status != vekStsOk) return status;
  store(stateOf(handle)->history(), line, stateOf(handle)->taps(), 0);
  std::reverse(line, line + stateOf(handle)->taps());
  return vekStsOk;
}

template <class Handle, class Data>
inline VekStatus firSetLine(Handle* handle, const Data* line) {
  const VekStatus status = checkState(handle);
  if (status == vekStsOk) setLine(stateOf(handle), line);
  return status;
}

}  // namespace veks

#endif
