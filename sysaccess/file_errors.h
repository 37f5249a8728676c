// The disk-error message of the main form: turns the last run-time error into
// a message box titled "Disk Error" and a recovery code.
#pragma once

namespace sysaccess {

// Recovery codes.
inline constexpr int kRetry = 0;
inline constexpr int kResumeNext = 1;
inline constexpr int kGiveUp = 2;
inline constexpr int kNotRecognised = 3; // also: answered Yes or No

// Looks at runtime::Err(). Numbers without a message return kNotRecognised at
// once, showing nothing.
int FileErrors();

} // namespace sysaccess
