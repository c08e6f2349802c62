#pragma once

namespace kalvora {

/// What becomes of a step of the program's work on what lasts: it fails; a write ends short; other
/// things happen before it comes; the program is killed before it, or right after it.
enum class Fault { Fail, Shorten, Delay, KillBefore, KillAfter };

}  // namespace kalvora
