#pragma once
// The silent error trap. A handler that meets a failure (an overflow of 16-bit arithmetic, a bad
// property value, a picture that cannot be made) stops where it is; the state stays as far as it got.
// The failure travels as a RuntimeError up to the handler's edge, where trap() swallows it.
#include <new>
#include <stdexcept>

namespace qp {

class RuntimeError : public std::runtime_error {
 public:
  // The runtime's error numbers, kept so that a trap can tell them apart when it needs to.
  enum Code {
    InvalidCall = 5,
    Overflow = 6,
    OutOfMemory = 7,
    SubscriptOutOfRange = 9,
    DivisionByZero = 11,
    TypeMismatch = 13,
    FileNotFound = 53,
    InvalidPropertyValue = 380,
    InvalidPicture = 481,
    ClipboardEmpty = 521,
  };
  RuntimeError(int code, const char* what) : std::runtime_error(what), code_(code) {}
  int code() const { return code_; }

 private:
  int code_;
};

[[noreturn]] inline void raiseError(int code, const char* what = "run-time error") {
  throw RuntimeError(code, what);
}

// Runs f under the error trap. Returns false when the trap caught a failure.
template <class F>
bool trap(F&& f) {
  try {
    f();
    return true;
  } catch (const RuntimeError&) {
    return false;
  } catch (const std::bad_alloc&) {
    return false;
  }
}

}  // namespace qp
