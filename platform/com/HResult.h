#pragma once

#include <cstdint>

namespace velmar::com {

/// The result of a call through a binary interface: negative for a failure.
using HResult = std::int32_t;

constexpr HResult kSOk = 0;
constexpr HResult kSFalse = 1;
constexpr HResult kENoInterface = static_cast<HResult>(0x80004002);
constexpr HResult kEPointer = static_cast<HResult>(0x80004003);
constexpr HResult kEFail = static_cast<HResult>(0x80004005);
constexpr HResult kEOutOfMemory = static_cast<HResult>(0x8007000E);
constexpr HResult kEAccessDenied = static_cast<HResult>(0x80070005);
constexpr HResult kENoAggregation = static_cast<HResult>(0x80040110);
constexpr HResult kEClassNotAvailable = static_cast<HResult>(0x80040111);

}  // namespace velmar::com
