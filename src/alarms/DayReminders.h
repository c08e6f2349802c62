#pragma once

#include "alarms/AlarmNoteReader.h"
#include "alarms/AlarmQueue.h"

namespace kalvora {

/// Queues the monthly and then the yearly notes that are due on a day: on their own day once, and
/// ahead of it as often as advanceMatches() says. `day` and `month` count from 1.
///
/// A missing day is taken as 99; a missing month is no month. A note with a number that cannot be
/// read is not queued and is a fault of `notes`; numbers that are not needed are not looked at.
void queueDueOn(int day, int month, AlarmNoteReader& notes, AlarmQueue& queue);

}  // namespace kalvora
