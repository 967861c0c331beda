#include "contract/invocation.h"

#include <algorithm>

#include "core/targets.h"

namespace veks::contract {
namespace {

constexpr int kLongestInAllRounds = 129;
constexpr size_t kFewRounds = 4;

// The valid values of all scalars take turns as the length grows.
Value scalarFor(const Parameter& parameter, size_t scalar, size_t len) {
  const List<double>& valid = parameter.valid;
  const size_t turn = len / (scalar + 1);
  return parameter.fromNumbers(valid.first[turn % valid.count],
                               valid.first[(turn + 1) % valid.count]);
}

const unsigned char* backgroundAt(const Operand& operand, const unsigned char* at) {
  return operand.background + (at - operand.buffer->begin());
}

bool isBackground(const Operand& operand, const unsigned char* from, const unsigned char* to) {
  return std::memcmp(from, backgroundAt(operand, from), static_cast<size_t>(to - from)) == 0;
}

bool isIntactOutside(const Operand& operand) {
  return isBackground(operand, operand.buffer->begin(), operand.start) &&
         isBackground(operand, operand.start + operand.bytes, operand.buffer->end());
}

void restore(const Operand& operand, const unsigned char* from, const unsigned char* to) {
  operand.buffer->write(from, backgroundAt(operand, from), static_cast<size_t>(to - from));
}

}  // namespace

Invocation::Invocation(const Descriptor& function, int len, Workspace& workspace,
                       std::optional<Overwrite> overwrite)
    : function_(function), len_(len), overwrite_(overwrite) {
  const size_t count = static_cast<size_t>(len);
  const unsigned char* overwritten = nullptr;
  size_t inputs = 0;
  for (size_t i = 0; i < function.count; ++i) {
    const Parameter& parameter = function.parameters[i];
    if (!parameter.isPointer()) continue;
    const size_t bytes = parameter.span.elements(count) * parameter.size;
    const unsigned char* input = nullptr;
    if (parameter.role != Role::kDestination) {
      input = workspace.input(parameter.lane, inputs++, bytes);
    }
    if (overwrite && overwrite->source == i) {
      overwritten = input;
    } else {
      GuardedBuffer& buffer = workspace.buffer(i, parameter.role == Role::kSource, bytes);
      const unsigned char* const background = workspace.background(buffer.bytes());
      operands_.push_back({&parameter, i, &buffer, bytes, input, background, buffer.begin()});
    }
  }
  for (Operand& operand : operands_) {
    if (overwrite && operand.argument == overwrite->destination) operand.input = overwritten;
  }
}

size_t Invocation::rounds() const {
  if (len_ > kLongestInAllRounds) return kFewRounds;
  size_t distances = 1;
  for (const Operand& operand : operands_) {
    distances = std::max(distances, kAlignments / operand.parameter->alignment);
  }
  return 1 + distances;
}

void Invocation::place(Placement placement) {
  placement_ = placement;
  const size_t len = static_cast<size_t>(len_);
  size_t scalars = 0;
  for (size_t i = 0; i < function_.count; ++i) {
    const Parameter& parameter = function_.parameters[i];
    if (parameter.role == Role::kLength) values_[i] = valueOf(len_);
    if (parameter.role == Role::kScalar) values_[i] = scalarFor(parameter, scalars++, len);
  }
  size_t shift = 0;
  for (Operand& operand : operands_) {
    const size_t turn = placement.round == 0 ? 0 : placement.round + shift;
    const size_t distance = turn * operand.parameter->alignment % kAlignments;
    shift += len;
    operand.start = placement.atEnd ? operand.buffer->end() - distance - operand.bytes
                                    : operand.buffer->begin() + distance;
    if (operand.input != nullptr) {
      operand.buffer->write(operand.start, operand.input, operand.bytes);
    }
    values_[operand.argument] = valueOf(operand.start);
  }
  if (overwrite_) values_[overwrite_->source] = values_[overwrite_->destination];
}

std::vector<unsigned char> Invocation::results() const {
  std::vector<unsigned char> all;
  for (const Operand& operand : operands_) {
    if (operand.isWritten()) all.insert(all.end(), operand.start, operand.start + operand.bytes);
  }
  return all;
}

const Operand* Invocation::differsFrom(const std::vector<unsigned char>& expected) const {
  size_t compared = 0;
  for (const Operand& operand : operands_) {
    if (!operand.isWritten()) continue;
    if (std::memcmp(operand.start, &expected[compared], operand.bytes) != 0) return &operand;
    compared += operand.bytes;
  }
  return nullptr;
}

const Operand* Invocation::changedOutside() const {
  for (const Operand& operand : operands_) {
    if (operand.isWritten() && !isIntactOutside(operand)) return &operand;
  }
  return nullptr;
}

const Operand* Invocation::changedAnywhere() const {
  for (const Operand& operand : operands_) {
    if (!operand.isWritten()) continue;
    const unsigned char* const before =
        operand.input != nullptr ? operand.input : backgroundAt(operand, operand.start);
    if (std::memcmp(operand.start, before, operand.bytes) != 0) return &operand;
  }
  return changedOutside();
}

void Invocation::restoreVectors() {
  for (const Operand& operand : operands_) {
    if (operand.isWritten()) restore(operand, operand.start, operand.start + operand.bytes);
  }
}

void Invocation::restoreBuffers() {
  for (const Operand& operand : operands_) {
    if (operand.isWritten()) restore(operand, operand.buffer->begin(), operand.buffer->end());
  }
}

std::string Invocation::describe() const {
  std::string text = targetName(activeTarget);
  if (streamingBytes == 0) text += " streaming";
  text +=
      ", len " + std::to_string(len_) + (placement_.atEnd ? ", at the end:" : ", at the start:");
  for (const Operand& operand : operands_) {
    const auto distance = placement_.atEnd ? operand.buffer->end() - operand.start -
                                                 static_cast<std::ptrdiff_t>(operand.bytes)
                                           : operand.start - operand.buffer->begin();
    text += std::string(" ") + operand.parameter->name + " " + std::to_string(distance);
  }
  return text;
}

}  // namespace veks::contract
