#include <gtest/gtest.h>
#include <rapidcheck.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "fakes/FakeFindHost.h"
#include "fakes/FakeFindNotesView.h"
#include "fakes/FakeNoteFolder.h"
#include "fakes/MemorySettingsStore.h"
#include "find/FindNotes.h"

namespace kalvora {
namespace {

std::string someLetters(int most, const std::string& letters) {
  return *rc::gen::resize(most, rc::gen::container<std::string>(rc::gen::elementOf(letters)));
}

/// Few letters, so that something is found. In code page 1252; the accents are those that the plain
/// statement knows.
std::string someText(int most) {
  return someLetters(most, "aBA sS\xE4\xC0\xDF");
}

/// The same rule in other words: letter by letter, with the letters of the test alone.
std::wstring plainly(const std::string& text) {
  std::wstring plain;
  for (const char letter : text) {
    if (letter == 'a' || letter == '\xE4' || letter == '\xC0') {
      plain += L'A';
    } else if (letter == 's') {
      plain += L'S';
    } else if (letter == '\xDF') {
      plain += L"SS";
    } else if (letter != ' ' || !plain.ends_with(L' ')) {
      plain += static_cast<wchar_t>(letter);
    }
  }
  return plain;
}

std::vector<std::wstring> plainWords(const std::string& typed) {
  std::vector<std::wstring> words(1);
  for (const wchar_t letter : plainly(typed)) {
    if (letter == L' ') {
      words.emplace_back();
    } else {
      words.back() += letter;
    }
  }
  return words;
}

struct FindWorld {
  void write(const std::string& name, const std::string& text) {
    folder.notes[codePage.toText(name) + L".tx1"] = "7|30|" + text;
  }
  std::vector<std::wstring> found() const {
    std::vector<std::wstring> names;
    for (std::size_t i = 0; i < view.rows; ++i) names.push_back(form.text(i, FindColumn::Name));
    return names;
  }
  std::vector<std::wstring> foundPlainly(const std::string& typed) const {
    std::vector<std::wstring> names;
    for (const auto& [file, bytes] : folder.notes) {
      const std::wstring name(titleOf(file));
      const std::wstring all = plainly(codePage.toBytes(name)) + L"\n" + plainly(bytes.substr(5));
      const auto has = [&](const std::wstring& word) {
        return all.find(word) != std::wstring::npos;
      };
      if (std::ranges::all_of(plainWords(typed), has)) names.push_back(name);
    }
    return names;
  }

  FakeNoteFolder folder;
  Windows1252 codePage;
  MemorySettingsStore settings;
  FakeFindNotesView view;
  FakeFindHost host;
  FindNotes form{{{folder, codePage, "notes"}, settings, view, host}};
};

/// Whatever is typed, letter by letter or at once, and whatever becomes of the notes meanwhile.
RC_GTEST_PROP(Find, isWhatAPlainStatementFinds, ()) {
  FindWorld world;
  const int count = *rc::gen::inRange(0, 8);
  for (int i = 0; i < count; ++i)
    world.write("n" + std::to_string(i) + someLetters(4, "aB s"), someText(12));
  world.form.Form_Load();
  const int steps = *rc::gen::inRange(1, 6);
  std::string typed;
  for (int step = 0; step < steps; ++step) {
    typed = *rc::gen::arbitrary<bool>() ? typed + someText(2) : someText(4);
    world.view.typed = world.codePage.toText(typed);
    world.form.search();
    std::vector<std::wstring> found = world.found();
    std::ranges::sort(found);
    std::vector<std::wstring> wanted = world.foundPlainly(typed);
    std::ranges::sort(wanted);
    RC_ASSERT(found == wanted);
    if (*rc::gen::arbitrary<bool>()) {
      world.write("n" + std::to_string(step), someText(12));
      world.form.activated();
    }
  }
}

/// The place that a row leads to has what was typed, and stands in the text where it says.
RC_GTEST_PROP(Find, leadsToWhatWasTyped, ()) {
  FindWorld world;
  const std::string text = someText(40);
  const std::string typed = someText(3);
  RC_PRE(typed.find(' ') == std::string::npos && !typed.empty());
  world.write("n", text);
  world.view.typed = world.codePage.toText(typed);
  world.form.Form_Load();
  RC_PRE(world.view.rows == 1U);
  world.form.openRow(0);
  const PlaceInNote& place = world.host.places.back();
  const std::wstring shown = world.codePage.toText(text);
  RC_ASSERT(shown.substr(place.begin, place.text.size()) == place.text);
  RC_ASSERT(plainly(world.codePage.toBytes(place.text)).find(plainly(typed)) != std::wstring::npos);
}

}  // namespace
}  // namespace kalvora
