// The fields of a page that nobody typed over, when it is left: a page shows some files as others
// than they are, and what it shows is not what the file is to hold.

#include "unit/notes/EditorFixture.h"

namespace kalvora {
namespace {

/// A file, what of it stays in front of a text that is typed, and what Save stores there.
struct LeftFields {
  const char* what;
  NoteKind kind;
  const char* fields;
  const char* asShown;
};

void PrintTo(const LeftFields& left, std::ostream* out) {
  *out << left.what;
}

const LeftFields kLeftFields[] = {
    {"OtherDigits", NoteKind::Daily, "07|05|", "7|05|"},
    {"DamagedHour", NoteKind::Daily, "noon|4|", "|4|"},
    {"DamagedMinute", NoteKind::Fast, "7|x5|", "7|5|"},
    {"DamagedWeekdays", NoteKind::Weekly, "7|5|x|1||12|0|0|1|", "7|5|0|1|0|0|0|0|1|"},
    {"DamagedDay", NoteKind::Monthly, "the 3rd|1|0|", "3|1|0|"},
    {"NoSuchMonth", NoteKind::Yearly, "20|13|6|2|", "20|-1|6|2|"},
    {"NoSuchDate", NoteKind::Once, "2026|2|30|9|0|", "2026|11|21|9|0|"},
    {"NoDate", NoteKind::Once, "|||9|0|", "2026|11|21|9|0|"},
};

class EditorLeftFields : public EditorFixture, public testing::WithParamInterface<LeftFields> {
 protected:
  void SetUp() override {
    host_.keeps = true;
    clock_.time = LocalTime{2026, 11, 21, 6, 6, 0, 30};
    fileName_ = L"Odd" + std::wstring(extensionOf(kind()));
    give(fileName_, GetParam().fields + std::string("Mat"));
    editor_.tbsOptions_Click(kind());
    ASSERT_TRUE(pick(kind(), L"Odd"));
    view_.at(contentBox(kind())).text = L"Mat and towel";
  }
  NoteKind kind() const { return GetParam().kind; }
  void expectSaved(const char* fields) const {
    EXPECT_EQ(files_.content.at(fileName_), fields + std::string("Mat and towel"));
  }

  std::wstring fileName_;
};

INSTANTIATE_TEST_SUITE_P(Files, EditorLeftFields, testing::ValuesIn(kLeftFields),
                         [](const auto& left) { return std::string(left.param.what); });

TEST_P(EditorLeftFields, stayAsTheFileHasThem) {
  editor_.tbsOptions_Click(kind() == NoteKind::Fast ? NoteKind::Daily : NoteKind::Fast);
  expectSaved(GetParam().fields);
  EXPECT_EQ(view_.notice, L"") << "nothing is told of it on the other page";
}

TEST_P(EditorLeftFields, soTheyDoWhereTheFileIsGone) {
  files_.content.erase(fileName_);
  editor_.saveQuietly();
  expectSaved(GetParam().fields);
}

TEST_P(EditorLeftFields, areStoredAsTheyAreShownBySave) {
  editor_.cmdSave(kind());
  expectSaved(GetParam().asShown);
}

}  // namespace
}  // namespace kalvora
