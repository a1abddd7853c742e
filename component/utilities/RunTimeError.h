#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>

namespace qncal {

/// The numbers that the component's own run-time errors carry.
namespace errorNumber {
inline constexpr std::int32_t invalidProcedureCall = 5;
inline constexpr std::int32_t overflow = 6;
inline constexpr std::int32_t outOfMemory = 7;
inline constexpr std::int32_t subscriptOutOfRange = 9;
inline constexpr std::int32_t typeMismatch = 13;
inline constexpr std::int32_t internalError = 51;
inline constexpr std::int32_t objectNotSet = 91;
inline constexpr std::int32_t invalidUseOfNull = 94;
} // namespace errorNumber

/// A run-time error: a number and a text, as they are handed to the host's error control.
class RunTimeError : public std::runtime_error {
public:
    RunTimeError(std::int32_t number, const std::string& text) : std::runtime_error(text), number_(number) {}
    std::int32_t number() const { return number_; }

private:
    std::int32_t number_;
};

} // namespace qncal
