#include "app/IniAnswer.h"

#include <gtest/gtest.h>

#include "fakes/IniCorpus.h"

namespace kalvora {
namespace {

TEST(OrdinaryIni, isWhatSkinsAreDescribedIn) {
  for (const char* bytes :
       {"", "\r\n\r\n", "[S]", "[S]\r\nK=5\r\n", "[S]\nK=5\n", "; a [comment] = 'it is'\r\n",
        "[Rool Down/Up]\r\nScrool, X = 7 \r\n", "  [S]  \r\n  K=\r\n", "[S]\r\nK=\"a;b=c]\"\r\n"}) {
    EXPECT_TRUE(isOrdinaryIni(bytes)) << bytes;
  }
}

TEST(OrdinaryIni, isNothingThatSystemsMayReadDifferently) {
  for (const char* bytes : {"[S]\r\nK=\xE4\r\n", "\xEF\xBB\xBF[S]\r\nK=5\r\n", "[S]\rK=5\r",
                            "[S]\r\nK=5\r", "[S]\r\nK=\t5\r\n", "[S]\r\nK=5\x1A", "[S]\r\nK=5\x7F",
                            "[S\r\nK=5\r\n", "[S] x\r\nK=5\r\n", "[S]]\r\n", "[[S]\r\n", "[]\r\n",
                            "[", "[ S]\r\n", "[S ]\r\n", "[S]\r\nK\r\n", "[S]\r\n=5\r\n"}) {
    EXPECT_FALSE(isOrdinaryIni(bytes)) << bytes;
  }
  EXPECT_FALSE(isOrdinaryIni(iniBytes("[S]\r\nK=5\0\r\n")));
}

TEST(OrdinaryIni, isFoundInTheCorpusAndIsNotAllOfIt) {
  std::size_t ordinary = 0;
  for (const IniCase& ini : kDocumentedIniCases) ordinary += isOrdinaryIni(ini.bytes) ? 1 : 0;
  EXPECT_GT(ordinary, 20U);
  EXPECT_LT(ordinary, kDocumentedIniCases.size());
}

}  // namespace
}  // namespace kalvora
