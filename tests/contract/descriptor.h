// What the contract sweep knows about a function. generate.py writes tables of it.
#ifndef CONTRACT_DESCRIPTOR_H
#define CONTRACT_DESCRIPTOR_H

#include <cstddef>
#include <cstring>
#include <limits>
#include <type_traits>
#include <utility>

#include "veks/status.h"

namespace veks::contract {

// A constant array.
template <class T>
struct List {
  const T* first = nullptr;
  size_t count = 0;

  constexpr List() = default;
  template <size_t n>
  constexpr List(const T (&array)[n]) : first(array), count(n) {}
  const T* begin() const {
    return first;
  }
  const T* end() const {
    return first + count;
  }
};

// Any argument: a pointer or a scalar.
struct Value {
  unsigned char bytes[16];
};

template <class T>
Value valueOf(T argument) {
  static_assert(sizeof(T) <= sizeof(Value), "no argument is larger than two doubles");
  Value value = {};
  std::memcpy(value.bytes, &argument, sizeof(T));
  return value;
}

template <class T>
T get(const Value& value) {
  T argument;
  std::memcpy(&argument, value.bytes, sizeof(T));
  return argument;
}

template <class... P, size_t... i>
VekStatus callWith(VekStatus (*function)(P...), const Value* values, std::index_sequence<i...>) {
  return function(get<P>(values[i])...);
}

template <class... P>
constexpr auto positions(VekStatus (*)(P...)) {
  return std::index_sequence_for<P...>();
}

// Calls `function` with the arguments that `values` holds.
template <auto function>
VekStatus call(const Value* values) {
  return callWith(function, values, positions(function));
}

enum class Role { kSource, kDestination, kSourceDestination, kLength, kScalar };

enum class Lane { kInteger, kFloat, kDouble };

// The number of elements behind a pointer.
struct Span {
  size_t perLen = 1;
  size_t fixed = 0;
  size_t perTwo = 0;

  constexpr size_t elements(size_t len) const {
    return perLen * len + fixed + perTwo * (len / 2);
  }
  constexpr bool operator==(const Span& other) const {
    return perLen == other.perLen && fixed == other.fixed && perTwo == other.perTwo;
  }
};

struct BadValue {
  double number;
  VekStatus status;
};

struct Parameter {
  const char* name;
  Role role;
  // Of the element behind a pointer:
  const void* type;
  size_t size;
  size_t alignment;
  Lane lane;
  Span span;
  bool mayBeNull;
  // Of a scalar: its value for a number, or for two if it is complex.
  Value (*fromNumbers)(double re, double im);
  List<double> valid;
  List<BadValue> bad;

  constexpr bool isPointer() const {
    return role != Role::kLength && role != Role::kScalar;
  }
};

constexpr size_t kMaxParameters = 8;

// What is checked before the rest, which keeps the order of pointers, length, scalars.
enum class CheckOrder { kPointersFirst, kLengthFirst, kScalarsFirst };

struct Descriptor {
  const char* name;
  VekStatus (*call)(const Value*);
  const Descriptor* outOfPlace;  // what an in-place function equals
  bool sameOnTargets;            // results equal to the last bit
  CheckOrder order;
  int leastLength;
  size_t count;
  Parameter parameters[kMaxParameters];
};

using Table = List<Descriptor>;

// A complex type consists of two lanes, any other is one.
template <class T, class = void>
struct LaneOf {
  using Type = T;
  static constexpr bool kIsComplex = false;
};

template <class T>
struct LaneOf<T, std::void_t<decltype(T::re)>> {
  using Type = decltype(T::re);
  static constexpr bool kIsComplex = true;
};

template <class T>
constexpr Lane laneOf() {
  using Type = typename LaneOf<T>::Type;
  if (!std::is_floating_point_v<Type>) return Lane::kInteger;
  return sizeof(Type) == sizeof(float) ? Lane::kFloat : Lane::kDouble;
}

// Its address stands for the type.
template <class T>
inline constexpr char kTypeTag = 0;

template <class T>
constexpr Parameter pointer(const char* name, Role role, Span span) {
  return {name, role,  &kTypeTag<T>, sizeof(T), alignof(T), laneOf<T>(),
          span, false, nullptr,      {},        {}};
}

template <class T>
constexpr Parameter source(const char* name, Span span = {}) {
  return pointer<T>(name, Role::kSource, span);
}

template <class T>
constexpr Parameter destination(const char* name, Span span = {}) {
  return pointer<T>(name, Role::kDestination, span);
}

// One value, for any length.
template <class T>
constexpr Parameter result(const char* name) {
  return pointer<T>(name, Role::kDestination, {0, 1});
}

constexpr Parameter mayBeNull(Parameter parameter) {
  parameter.mayBeNull = true;
  return parameter;
}

template <class T>
constexpr Parameter sourceDestination(const char* name, Span span = {}) {
  return pointer<T>(name, Role::kSourceDestination, span);
}

template <class T>
Value fromNumbers(double re, double im) {
  using Type = typename LaneOf<T>::Type;
  if constexpr (LaneOf<T>::kIsComplex) {
    return valueOf(T{static_cast<Type>(re), static_cast<Type>(im)});
  } else {
    return valueOf(static_cast<T>(re));
  }
}

// Values of a scalar that may have any.
template <class T>
inline constexpr double kAnyNumber[] = {0, 1,
                                        static_cast<double>(std::numeric_limits<T>::max() / 3),
                                        static_cast<double>(std::numeric_limits<T>::lowest() / 5)};

template <class T>
constexpr Parameter scalar(const char* name,
                           List<double> valid = kAnyNumber<typename LaneOf<T>::Type>,
                           List<BadValue> bad = {}) {
  return {name, Role::kScalar, nullptr, 0, 0, laneOf<T>(), {}, false, fromNumbers<T>, valid, bad};
}

constexpr Parameter length(const char* name) {
  return {name, Role::kLength, nullptr, 0, 0, Lane::kInteger, {}, false, nullptr, {}, {}};
}

}  // namespace veks::contract

#endif
