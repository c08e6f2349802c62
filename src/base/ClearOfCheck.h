#pragma once

namespace kalvora {

/// `seconds`, or as many more as it takes that their end does not fall into the seconds of a minute
/// in which reminders are looked for. `now` is the second of the minute. For what may take its
/// time, such as work on a slow disk: a check that it held up would be missed.
int clearOfCheck(int seconds, int now);

}  // namespace kalvora
