#pragma once

#include <array>
#include <filesystem>
#include <string>
#include <vector>

#include "app/ProfileReader.h"

namespace kalvora {

/// One ini file and one question put to it.
struct IniCase {
  std::string name;
  std::string bytes;
  std::string section;
  std::string key;
  std::string answer;  // into a buffer of 255 bytes, with kIniFallback for a missing value
};

inline const std::string kIniFallback = "none";

/// A literal that holds NUL characters.
template <std::size_t N>
std::string iniBytes(const char (&literal)[N]) {
  return std::string(literal, N - 1);
}

inline std::string letters(std::size_t count) {
  std::string text;
  while (text.size() < count) text += static_cast<char>('a' + text.size() % 26);
  return text;
}

inline std::string valueOfLength(std::size_t count) {
  return "[S]\r\nK=" + letters(count) + "\r\n";
}

/// Files whose answers follow from the documentation of the platform's call.
inline const std::vector<IniCase> kDocumentedIniCases = {
    // The ordinary file.
    {"plain", "[S]\r\nK=5\r\n", "S", "K", "5"},
    {"secondKey", "[S]\r\nA=1\r\nK=5\r\nB=2\r\n", "S", "K", "5"},
    {"secondSection", "[A]\r\nK=1\r\n[S]\r\nK=5\r\n", "S", "K", "5"},
    {"negative", "[S]\r\nK=-12\r\n", "S", "K", "-12"},
    {"sectionWithCommaAndSlash", "[Rool Down/Up]\r\nScrool, X=7\r\n", "Rool Down/Up", "Scrool, X",
     "7"},
    // Missing parts.
    {"emptyFile", "", "S", "K", kIniFallback},
    {"noSuchSection", "[A]\r\nK=1\r\n", "S", "K", kIniFallback},
    {"noSuchKey", "[S]\r\nA=1\r\n[B]\r\nK=2\r\n", "S", "K", kIniFallback},
    {"emptyValue", "[S]\r\nK=\r\n", "S", "K", ""},
    {"blankValue", "[S]\r\nK=   \r\n", "S", "K", ""},
    {"keyWithoutEquals", "[S]\r\nK\r\n", "S", "K", kIniFallback},
    {"keyBeforeAnySection", "K=1\r\n[S]\r\nA=2\r\n", "S", "K", kIniFallback},
    {"lineOfEqualsOnly", "[S]\r\n=\r\nK=5\r\n", "S", "K", "5"},
    {"onlyASection", "[S]", "S", "K", kIniFallback},
    // Case.
    {"sectionInOtherCase", "[s]\r\nK=5\r\n", "S", "K", "5"},
    {"keyInOtherCase", "[S]\r\nkEy=5\r\n", "S", "KeY", "5"},
    {"divisionAndTimesAreNoCases", "[S]\r\n\xF7=5\r\n", "S", "\xD7", kIniFallback},
    {"sharpSIsNotSS", "[S]\r\n\xDF=5\r\n", "S", "SS", kIniFallback},
    // Duplicates.
    {"sameKeyTwice", "[S]\r\nK=1\r\nK=2\r\n", "S", "K", "1"},
    {"sameSectionTwice", "[S]\r\nK=1\r\n[S]\r\nK=2\r\n", "S", "K", "1"},
    {"sameSectionTwiceKeyInTheSecond", "[S]\r\nA=1\r\n[S]\r\nK=2\r\n", "S", "K", kIniFallback},
    {"sameSectionTwiceInOtherCase", "[S]\r\nA=1\r\n[s]\r\nK=2\r\n", "S", "K", kIniFallback},
    {"firstOfTheSameKeysEmpty", "[S]\r\nK=\r\nK=2\r\n", "S", "K", ""},
    // Blanks.
    {"blanksAroundEquals", "[S]\r\nK  =  5\r\n", "S", "K", "5"},
    {"tabsAroundEquals", "[S]\r\nK\t=\t5\r\n", "S", "K", "5"},
    {"blanksBeforeTheKey", "[S]\r\n   K=5\r\n", "S", "K", "5"},
    {"tabBeforeTheKey", "[S]\r\n\tK=5\r\n", "S", "K", "5"},
    {"blanksAfterTheValue", "[S]\r\nK=5   \r\n", "S", "K", "5"},
    {"tabAfterTheValue", "[S]\r\nK=5\t\r\n", "S", "K", "5"},
    {"blanksInsideTheValue", "[S]\r\nK=a  b\r\n", "S", "K", "a  b"},
    {"blankInsideTheKey", "[S]\r\nK K=5\r\n", "S", "K K", "5"},
    {"blanksAroundTheKeyAsked", "[S]\r\nK=5\r\n", "S", " K ", "5"},
    {"blanksAroundTheSectionAsked", "[S]\r\nK=5\r\n", " S ", "K", "5"},
    {"blanksBeforeTheBracket", "  [S]\r\nK=5\r\n", "S", "K", "5"},
    {"blanksAfterTheBracket", "[S]  \r\nK=5\r\n", "S", "K", "5"},
    {"noBreakSpaceAroundTheValue",
     "[S]\r\nK=\xA0"
     "5\xA0\r\n",
     "S", "K",
     "\xA0"
     "5\xA0"},
    {"controlCharactersAroundTheValue",
     "[S]\r\nK=\x01"
     "5\x02\r\n",
     "S", "K",
     "\x01"
     "5\x02"},
    // Quotes.
    {"doubleQuotes", "[S]\r\nK=\"5\"\r\n", "S", "K", "5"},
    {"singleQuotes", "[S]\r\nK='5'\r\n", "S", "K", "5"},
    {"quotesKeepBlanks", "[S]\r\nK=\"  5  \"\r\n", "S", "K", "  5  "},
    {"quoteOnlyBefore", "[S]\r\nK=\"5\r\n", "S", "K", "\"5"},
    {"quoteOnlyAfter", "[S]\r\nK=5\"\r\n", "S", "K", "5\""},
    {"quotesThatDiffer", "[S]\r\nK=\"5'\r\n", "S", "K", "\"5'"},
    {"quotesTwice", "[S]\r\nK=\"\"5\"\"\r\n", "S", "K", "\"5\""},
    {"quotesInsideQuotes", "[S]\r\nK=\"a\"b\"\r\n", "S", "K", "a\"b"},
    {"onlyOneQuote", "[S]\r\nK=\"\r\n", "S", "K", "\""},
    {"onlyTwoQuotes", "[S]\r\nK=\"\"\r\n", "S", "K", ""},
    {"textAfterQuotes", "[S]\r\nK=\"5\" x\r\n", "S", "K", "\"5\" x"},
    {"quotedKey", "[S]\r\n\"K\"=5\r\n", "S", "K", kIniFallback},
    // Comments.
    {"commentLine", "; K=1\r\n[S]\r\n;K=2\r\nK=5\r\n", "S", "K", "5"},
    {"onlyACommentedKey", "[S]\r\n;K=2\r\n", "S", "K", kIniFallback},
    {"commentedSection", ";[S]\r\nK=1\r\n", "S", "K", kIniFallback},
    {"semicolonInTheValue", "[S]\r\nK=5 ; five\r\n", "S", "K", "5 ; five"},
    {"hashIsNoComment", "[S]\r\n#K=2\r\n", "S", "#K", "2"},
    // "=" and brackets in odd places.
    {"equalsInTheValue", "[S]\r\nK=a=b=c\r\n", "S", "K", "a=b=c"},
    {"twoEquals", "[S]\r\nK==5\r\n", "S", "K", "=5"},
    {"equalsInTheSection", "[S=1]\r\nK=5\r\n", "S=1", "K", "5"},
    {"textAfterTheBracket", "[S] text\r\nK=5\r\n", "S", "K", "5"},
    {"commentAfterTheBracket", "[S] ; text\r\nK=5\r\n", "S", "K", "5"},
    {"keyAfterTheBracket", "[S]K=5\r\n", "S", "K", kIniFallback},
    {"bracketNeverClosed", "[S\r\nK=5\r\n", "S", "K", kIniFallback},
    {"bracketsInTheValue", "[S]\r\nK=[5]\r\n", "S", "K", "[5]"},
    // Line ends.
    {"lfOnly", "[S]\nK=5\n", "S", "K", "5"},
    {"noLineEndAtTheEnd", "[S]\r\nK=5", "S", "K", "5"},
    {"noLineEndAtTheEndOfABlankValue", "[S]\r\nK= ", "S", "K", ""},
    {"emptyLines", "\r\n\r\n[S]\r\n\r\n\r\nK=5\r\n\r\n", "S", "K", "5"},
    // Long values and lines.
    {"value253", valueOfLength(253), "S", "K", letters(253)},
    {"value254", valueOfLength(254), "S", "K", letters(254)},
    {"value255", valueOfLength(255), "S", "K", letters(254)},
    {"value256", valueOfLength(256), "S", "K", letters(254)},
    {"value257", valueOfLength(257), "S", "K", letters(254)},
    {"value300", valueOfLength(300), "S", "K", letters(254)},
    {"value400", valueOfLength(400), "S", "K", letters(254)},
    {"quotedValue254", "[S]\r\nK=\"" + letters(254) + "\"\r\n", "S", "K", letters(254)},
    {"quotedValue255", "[S]\r\nK=\"" + letters(255) + "\"\r\n", "S", "K", letters(254)},
    {"longValueCutAtABlank", "[S]\r\nK=" + letters(253) + "    x\r\n", "S", "K",
     letters(253) + " "},
    {"longKey", "[S]\r\n" + letters(400) + "=5\r\n", "S", letters(400), "5"},
    {"longSection", "[" + letters(400) + "]\r\nK=5\r\n", letters(400), "K", "5"},
    {"veryLongLineBefore", "[S]\r\nA=" + letters(70000) + "\r\nK=5\r\n", "S", "K", "5"},
    {"veryLongComment", ";" + letters(70000) + "\r\n[S]\r\nK=5\r\n", "S", "K", "5"},
    {"veryLongValue", valueOfLength(70000), "S", "K", letters(254)},
    // Bytes that are no ASCII text.
    {"bytesAbove127", "[S]\r\nK=\xE4\xF6\xFC \x80 \xB3\r\n", "S", "K", "\xE4\xF6\xFC \x80 \xB3"},
    {"bytesWithoutCharacters", "[S]\r\nK=\x81\x8D\x8F\x90\x9D\r\n", "S", "K",
     "\x81\x8D\x8F\x90\x9D"},
    {"utf16Mark",
     iniBytes("\xFF\xFE[\0S\0]\0\r\0\n\0K\0=\0"
              "5\0\r\0\n\0"),
     "S", "K", "5"},
    {"utf16MarkOnly", "\xFF\xFE", "S", "K", kIniFallback},
    {"quotedValue300", "[S]\r\nK=\"" + letters(300) + "\"\r\n", "S", "K", letters(254)},
    {"quotedValue253", "[S]\r\nK=\"" + letters(253) + "\"\r\n", "S", "K", letters(253)},
    {"formFeedEndsNoLine", "[S]\r\nA=1\x0CK=5\r\n", "S", "K", kIniFallback},
    {"separatorsAreNoBlanks",
     "[S]\r\nK=\x1C\x1D\x1E\x1F"
     "5\x1C\x1D\x1E\x1F\r\n",
     "S", "K",
     "\x1C\x1D\x1E\x1F"
     "5\x1C\x1D\x1E\x1F"},
    {"accentedKeyInTheSameCase", "[S]\r\n\xE9=5\r\n", "S", "\xE9", "5"},
    {"noBreakSpaceInTheKey", "[S]\r\nK\xA0=5\r\n", "S", "K", kIniFallback},
    {"commentedSectionAfterABlank", " ;[S]\r\nK=5\r\n", "S", "K", kIniFallback},
    {"onlyAClosingBracket", "[S]\r\n]\r\nK=5\r\n", "S", "K", "5"},
};

/// Files on which the documentation is silent: the answers are those that Wine 8 gives.
inline const std::vector<IniCase> kOddIniCases = {
    // Missing parts.
    {"keyWithoutEqualsThenAgainWith", "[S]\r\nK\r\nK=5\r\n", "S", "K", kIniFallback},
    {"keyBeforeAnySectionAskedInNoSection", "K=1\r\n[S]\r\nA=2\r\n", "", "K", "1"},
    {"emptySectionName", "[]\r\nK=5\r\n", "", "K", kIniFallback},
    {"emptyKeyAsked", "[S]\r\n=5\r\n", "S", "", "5"},
    // Case.
    {"accentedKeyInOtherCase", "[S]\r\n\xE9t\xE9=5\r\n", "S", "\xC9T\xC9", kIniFallback},
    {"accentedSectionInOtherCase", "[\xFC]\r\nK=5\r\n", "\xDC", "K", kIniFallback},
    {"letterZCaronInOtherCase", "[S]\r\n\x9E=5\r\n", "S", "\x8E", kIniFallback},
    {"letterYDiaeresisInOtherCase", "[S]\r\n\xFF=5\r\n", "S", "\x9F", kIniFallback},
    // Blanks.
    {"blanksInsideTheBrackets", "[ S ]\r\nK=5\r\n", "S", "K", "5"},
    {"blanksInsideTheBracketsAsked", "[ S ]\r\nK=5\r\n", " S ", "K", "5"},
    {"verticalTabAndFormFeed",
     "[S]\r\n\x0BK\x0C=\x0B"
     "5\x0C\r\n",
     "S", "K", "5"},
    // Comments.
    {"commentedKeyAsked", "[S]\r\n;K=2\r\n", "S", ";K", "2"},
    {"commentAfterBlanks", "[S]\r\n  ;K=2\r\n", "S", ";K", "2"},
    // "=" and brackets in odd places.
    {"bracketNeverClosedInsideAnother", "[S]\r\n[T\r\nK=5\r\n", "S", "K", "5"},
    {"bracketNeverClosedAskedWithBracket", "[S\r\nK=5\r\n", "[S", "K", kIniFallback},
    {"twoClosingBrackets", "[S]]\r\nK=5\r\n", "S", "K", kIniFallback},
    {"twoClosingBracketsAsked", "[S]]\r\nK=5\r\n", "S]", "K", "5"},
    {"twoOpeningBracketsAsked", "[[S]\r\nK=5\r\n", "[S", "K", "5"},
    {"twoSectionsOnALine", "[A][S]\r\nK=5\r\n", "S", "K", kIniFallback},
    {"twoSectionsOnALineFirstAsked", "[A][S]\r\nK=5\r\n", "A", "K", kIniFallback},
    {"keyInBrackets", "[S]\r\n[K]=5\r\n", "S", "K", kIniFallback},
    // Line ends.
    {"crOnly", "[S]\rK=5\r", "S", "K", "5"},
    {"mixedLineEnds", "[S]\nA=1\r\nB=2\rK=5\n\r", "S", "K", "5"},
    {"doubledCr", "[S]\r\r\nK=5\r\r\n", "S", "K", "5"},
    {"endOfFileCharacter", "[S]\r\nA=1\r\n\x1AK=5\r\n", "S", "K", "5"},
    {"endOfFileCharacterAfterTheValue", "[S]\r\nK=5\x1A", "S", "K", "5"},
    // Bytes that are no ASCII text.
    {"utf8Mark", "\xEF\xBB\xBF[S]\r\nK=5\r\n", "S", "K", "5"},
    {"utf8MarkAndACommentFirst", "\xEF\xBB\xBF;c\r\n[S]\r\nK=5\r\n", "S", "K", "5"},
    {"utf8MarkAndAccents", "\xEF\xBB\xBF;c\r\n[S]\r\nK=\xC3\xA9\r\n", "S", "K", "\xE9"},
    {"utf8Mark2ndSection", "\xEF\xBB\xBF[A]\r\nK=1\r\n[S]\r\nK=5\r\n", "S", "K", "5"},
    {"utf8MarkOnly", "\xEF\xBB\xBF", "S", "K", kIniFallback},
    {"utf16BigEndianMark",
     iniBytes("\xFE\xFF\0[\0S\0]\0\r\0\n\0K\0=\0"
              "5\0\r\0\n"),
     "S", "K", "5"},
    {"utf16WithoutMark",
     iniBytes("[\0S\0]\0\r\0\n\0K\0=\0"
              "5\0\r\0\n\0"),
     "S", "K", kIniFallback},
    {"utf16BadLength",
     iniBytes("\xFF\xFE[\0S\0]\0\r\0\n\0K\0=\0"
              "5\0\r\0\n\0x"),
     "S", "K", "5"},
    {"nulInTheValue",
     iniBytes("[S]\r\nK=5\0"
              "6\r\n"),
     "S", "K", "5"},
    {"nulInTheKey", iniBytes("[S]\r\nK\0x=5\r\n"), "S", "K", "5"},
    {"nulInTheSection", iniBytes("[S\0x]\r\nK=5\r\n"), "S", "K", "5"},
    {"nulBetweenLines", iniBytes("[S]\r\nA=1\0K=5\r\n"), "S", "K", kIniFallback},
    {"nulLineBefore", iniBytes("[S]\r\n\0\r\nK=5\r\n"), "S", "K", "5"},
    {"nulOnly", iniBytes("\0\0\0\0"), "S", "K", kIniFallback},
    {"nulBeforeTheSection", iniBytes("\0\0[S]\r\nK=5\r\n"), "S", "K", kIniFallback},
    {"unclosedBracketIsAKey", "[S]\r\n[T=1\r\nK=5\r\n", "S", "[T", "1"},
    {"bracketInACommentAfterTheBracket", "[S] ; see [T]\r\nK=5\r\n", "S", "K", kIniFallback},
    {"nulAfterABlankInTheKey", iniBytes("[S]\r\nK \0x=5\r\n"), "S", "K", kIniFallback},
    {"nulAfterABlankInTheSection", iniBytes("[S \0x]\r\nK=5\r\n"), "S", "K", kIniFallback},
    {"nulAfterABlankInTheValue", iniBytes("[S]\r\nK=5 \0x\r\n"), "S", "K", "5 "},
    {"nulFirstInTheValue", iniBytes("[S]\r\nK=\0x\r\n"), "S", "K", ""},
    {"nulInQuotes", iniBytes("[S]\r\nK=\"a\0b\"\r\n"), "S", "K", "\"a"},
    {"nulAfterQuotes", iniBytes("[S]\r\nK=\"a\"\0b\r\n"), "S", "K", "a"},
    {"nulInALineWithoutEquals", iniBytes("[S]\r\nK\0\r\nK=5\r\n"), "S", "K", kIniFallback},
    {"endOfFileCharactersAsBlanks",
     "[S]\r\nK\x1A=\x1A"
     "5\x1A\r\n",
     "S", "K", "5"},
    {"utf8BadBytes",
     "\xEF\xBB\xBF;c\r\n[S]\r\nK=a\xC3"
     "b\xFF"
     "c\r\n",
     "S", "K", "a?b?c"},
    {"endOfFileCharacterOnItsOwn", "[S]\r\nA=1\r\n\x1A\r\nK=5\r\n", "S", "K", "5"},
    {"crInTheValue", "[S]\r\nK=5\r6\r\n", "S", "K", "5"},
    {"lfBeforeCr", "[S]\n\rK=5\n\r", "S", "K", "5"},
    {"onlyAnOpeningBracket", "[S]\r\n[\r\nK=5\r\n", "S", "K", "5"},
    {"bracketInAValueAfterABracket", "[S]\r\n[K=a]b\r\nK=5\r\n", "S", "K", kIniFallback},
};

/// The answer of `reader` to the question, as Config_file would ask it.
inline std::string askIni(ProfileReader& reader, const IniCase& ini,
                          const std::filesystem::path& file) {
  std::array<char, 255> buffer{};
  const std::size_t count =
      reader.privateProfileString(ini.section, ini.key, kIniFallback, buffer, file);
  return std::string(buffer.data(), count);
}

}  // namespace kalvora
