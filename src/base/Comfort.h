#pragma once

namespace kalvora {

/// Where the user chose comfort over the program's old rules. All off, those hold as ever.
struct Comfort {
  bool Ring_while_out = false;  // a reminder comes into the window that is out
  bool Catch_up = false;        // what came due while nobody looked is shown later
  bool Each_day = false;  // monthly and yearly notes are looked for each day, not at starts only
  bool Once_a_minute = false;  // a note is queued once in its minute
  bool Once_notes = false;     // there are notes for one date; off, their files are unknown ones
  bool Keep_typing = false;    // a note that is left is saved as it was typed, in its own kind

  friend bool operator==(const Comfort&, const Comfort&) = default;
};

}  // namespace kalvora
