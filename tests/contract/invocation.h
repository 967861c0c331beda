// One function with arguments for one length, placed anywhere in guarded memory.
#ifndef CONTRACT_INVOCATION_H
#define CONTRACT_INVOCATION_H

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "contract/buffers.h"
#include "contract/descriptor.h"
#include "contract/fault.h"

namespace veks::contract {

// Where the vectors lie: at a distance from the guard before them or behind them. In round 0 all
// touch it. In the other rounds each pointer takes every distance once, while the differences
// between the pointers change with the length.
struct Placement {
  bool atEnd;
  size_t round;
};

// A vector in its buffer.
struct Operand {
  const Parameter* parameter;
  size_t argument;  // its position among the arguments
  GuardedBuffer* buffer;
  size_t bytes;
  const unsigned char* input;       // what the function reads; null for a destination
  const unsigned char* background;  // what the buffer holds between the calls
  unsigned char* start;

  bool isWritten() const {
    return parameter->role != Role::kSource;
  }
};

// A source and a destination, by their positions among the arguments, that are the same vector.
struct Overwrite {
  size_t source;
  size_t destination;
};

class Invocation {
 public:
  // The n-th vector that a function reads has the same values in every function.
  Invocation(const Descriptor& function, int len, Workspace& workspace,
             std::optional<Overwrite> overwrite = std::nullopt);

  // The rounds in which every pointer has been at every distance; less for long vectors.
  size_t rounds() const;

  // Gives all arguments their values and fills what the function reads.
  void place(Placement placement);

  // Replaces an argument until the next place().
  void set(size_t argument, const Value& value) {
    values_[argument] = value;
  }

  // Unless there is a fault, status() is then what the function returned.
  std::optional<Fault> run() {
    return callGuarded(function_, values_, status_);
  }
  VekStatus status() const {
    return status_;
  }

  // What is in the vectors that the function writes, one after the other.
  std::vector<unsigned char> results() const;
  // Where they differ from others, or null.
  const Operand* differsFrom(const std::vector<unsigned char>& expected) const;

  // An operand with a byte outside, or any byte, that is not as before the call; or null.
  const Operand* changedOutside() const;
  const Operand* changedAnywhere() const;

  // Undoes what the call has written into its vectors, or anywhere.
  void restoreVectors();
  void restoreBuffers();

  const Descriptor& function() const {
    return function_;
  }
  const std::vector<Operand>& operands() const {
    return operands_;
  }
  // The active target and the arguments in words.
  std::string describe() const;

 private:
  const Descriptor& function_;
  const int len_;
  std::vector<Operand> operands_;
  std::optional<Overwrite> overwrite_;
  Placement placement_ = {};
  Value values_[kMaxParameters] = {};
  VekStatus status_ = vekStsOk;
};

}  // namespace veks::contract

#endif
