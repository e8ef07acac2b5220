#pragma once

#include <string>
#include <utility>
#include <variant>

namespace bannersmith {

/// Why something could not be done: what it concerns (a file as the user named it, or a control)
/// and the reason, a short text without a full stop.
struct Failure {
    std::u16string subject;
    std::string reason;
};

/// What a routine that can fail returns: a value, or why there is none. Nothing was changed where
/// it failed, unless the routine says otherwise.
template <typename T = std::monostate>
class [[nodiscard]] Result {
 public:
    /// Done, for a routine without a value.
    Result() requires std::is_same_v<T, std::monostate> {}
    // Implicit, so that a routine returns its value or its failure as it is.
    Result(T value) : state_(std::in_place_index<0>, std::move(value)) {}
    Result(Failure failure) : state_(std::in_place_index<1>, std::move(failure)) {}

    /// Whether it was done, so that there is a value.
    explicit operator bool() const { return state_.index() == 0; }

    /// The value; only where it was done.
    T& operator*() { return *std::get_if<0>(&state_); }
    const T& operator*() const { return *std::get_if<0>(&state_); }
    T* operator->() { return std::get_if<0>(&state_); }
    const T* operator->() const { return std::get_if<0>(&state_); }

    /// The value, or `other` where there is none.
    T Value_Or(T other) && { return *this ? std::move(**this) : std::move(other); }

    /// Why not; only where it was not done.
    const Failure& Why() const { return *std::get_if<1>(&state_); }

    /// The same, a failure being one of `subject`.
    Result About(const std::u16string& subject) && {
        if (auto* failure = std::get_if<1>(&state_)) failure->subject = subject;
        return std::move(*this);
    }

 private:
    std::variant<T, Failure> state_;
};

}  // namespace bannersmith
