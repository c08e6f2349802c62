#include "app/ButtonBar.h"

#include "Form1Fixture.h"

namespace kalvora {
namespace {

constexpr Point kNowhere{59, 5};
constexpr Point kInside = {25, 32};  // of Buttons_main_01, which covers 23 to 27 and 30 to 34

class ButtonBars : public Form1Test {
 protected:
  ButtonBars() { window_.wear(loadSkin(files, skinValues, folder.path() / "skins/One")); }

  /// Whether the button looks pressed, by its pixels.
  bool pressed(ButtonId id) const {
    const Rect place = window_.buttonRect(id);
    return window_.paint({60, 40}).at(place.x + 2, place.y + 2) == pixelOf(0x44, 0x55, 0x66);
  }

  void release(MouseButton mouse, Point at) {
    if (const auto click = bar.mouseUp(mouse, at)) {
      EXPECT_EQ(click->mouse, MouseButton::Left);
      acted.push_back(click->button);
    }
  }

  std::vector<ButtonId> acted;
  SkinnedWindow window_;
  ButtonBar bar{window_};
};

constexpr ButtonId kNew = ButtonId::Buttons_main_01;

TEST_F(ButtonBars, everyButtonLooksPressedFromPressToReleaseAndThenActs) {
  for (const ButtonId id : kEverySkinsButtons) {
    EXPECT_FALSE(pressed(id));
    EXPECT_TRUE(bar.mouseDown(MouseButton::Left, middleOf(id)));
    EXPECT_TRUE(pressed(id));
    EXPECT_TRUE(acted.empty());
    release(MouseButton::Left, middleOf(id));
    EXPECT_FALSE(pressed(id));
    EXPECT_EQ(acted, std::vector<ButtonId>{id});
    acted.clear();
  }
}

TEST_F(ButtonBars, aPressBesideTheButtonsIsNotTheirs) {
  EXPECT_FALSE(bar.mouseDown(MouseButton::Left, kNowhere));
  bar.mouseMove(MouseButton::Left, kInside);
  EXPECT_FALSE(pressed(kNew)) << "a button is not pressed by moving onto it";
  release(MouseButton::Left, kInside);
  EXPECT_TRUE(acted.empty());
}

TEST_F(ButtonBars, pressingLeavingAndReleasingOutsideDoesNothing) {
  bar.mouseDown(MouseButton::Left, kInside);
  bar.mouseMove(MouseButton::Left, kNowhere);
  EXPECT_FALSE(pressed(kNew));
  release(MouseButton::Left, kNowhere);
  EXPECT_FALSE(pressed(kNew));
  EXPECT_TRUE(acted.empty());
}

TEST_F(ButtonBars, leavingAndComingBackLooksPressedAgainAndActs) {
  bar.mouseDown(MouseButton::Left, kInside);
  bar.mouseMove(MouseButton::Left, {-10, -10});
  EXPECT_FALSE(pressed(kNew));
  bar.mouseMove(MouseButton::Left, kInside);
  EXPECT_TRUE(pressed(kNew));
  release(MouseButton::Left, kInside);
  EXPECT_EQ(acted, std::vector<ButtonId>{kNew});
}

TEST_F(ButtonBars, releasingOnAnotherButtonMakesNeitherAct) {
  bar.mouseDown(MouseButton::Left, kInside);
  bar.mouseMove(MouseButton::Left, middleOf(ButtonId::Buttons_main_02));
  EXPECT_FALSE(pressed(kNew));
  EXPECT_FALSE(pressed(ButtonId::Buttons_main_02));
  release(MouseButton::Left, middleOf(ButtonId::Buttons_main_02));
  EXPECT_TRUE(acted.empty());
}

TEST_F(ButtonBars, onItsEdgeAButtonLooksPressedButAReleaseThereDoesNothing) {
  const Rect place = window_.buttonRect(kNew);
  for (const Point edge : {Point{place.x, 32}, Point{place.right(), 32}, Point{25, place.y},
                           Point{25, place.bottom()}}) {
    bar.mouseDown(MouseButton::Left, kInside);
    bar.mouseMove(MouseButton::Left, edge);
    EXPECT_TRUE(pressed(kNew)) << edge.x << ',' << edge.y;
    release(MouseButton::Left, edge);
    EXPECT_FALSE(pressed(kNew));
    EXPECT_TRUE(acted.empty()) << edge.x << ',' << edge.y;
  }
  for (const Point justInside :
       {Point{place.x + 1, place.y + 1}, Point{place.right() - 1, place.bottom() - 1}}) {
    bar.mouseDown(MouseButton::Left, kInside);
    release(MouseButton::Left, justInside);
    EXPECT_EQ(acted, std::vector<ButtonId>{kNew});
    acted.clear();
  }
}

TEST_F(ButtonBars, otherMouseButtonsNeitherPressNorAct) {
  for (const MouseButton other : {MouseButton::Right, MouseButton::Middle}) {
    EXPECT_TRUE(bar.mouseDown(other, kInside)) << "it does not move the window either";
    EXPECT_FALSE(pressed(kNew));
    bar.mouseMove(other, kInside);
    EXPECT_FALSE(pressed(kNew));
    release(other, kInside);
    EXPECT_TRUE(acted.empty());
  }
}

TEST_F(ButtonBars, anotherMouseButtonInTheMiddleOfAPressChangesNothing) {
  bar.mouseDown(MouseButton::Left, kInside);
  EXPECT_TRUE(bar.mouseDown(MouseButton::Right, middleOf(ButtonId::Buttons_main_05)));
  release(MouseButton::Right, middleOf(ButtonId::Buttons_main_05));
  EXPECT_TRUE(pressed(kNew));
  EXPECT_TRUE(bar.mouseDown(MouseButton::Right, kNowhere)) << "the window is not moved either";
  release(MouseButton::Right, kNowhere);
  release(MouseButton::Left, kInside);
  EXPECT_FALSE(pressed(kNew));
  EXPECT_EQ(acted, std::vector<ButtonId>{kNew});
}

TEST_F(ButtonBars, aPressWhoseMouseWentElsewhereLooksNormalAndDoesNothing) {
  bar.mouseDown(MouseButton::Left, kInside);
  bar.mouseLost();
  EXPECT_FALSE(pressed(kNew));
  bar.mouseMove(MouseButton::Left, kInside);
  EXPECT_FALSE(pressed(kNew));
  release(MouseButton::Left, kInside);
  EXPECT_TRUE(acted.empty());
}

TEST_F(ButtonBars, hiddenButtonsCannotBePressed) {
  window_.Ukryj_pics(Hide::Yes);
  EXPECT_FALSE(bar.mouseDown(MouseButton::Left, kInside));
  EXPECT_TRUE(bar.mouseDown(MouseButton::Left, middleOf(ButtonId::Buttons_Down)))
      << "the three of the title strip stay";
}

/// The buttons' sounds, by the whole program.
class ButtonSounds : public Form1Test {
 protected:
  ButtonSounds() {
    note("a.txt", "||x");
    note("b.txt", "||x");
    store.values[L"Sounds/Use_Sounds"] = L"True";
    for (const wchar_t* key : {L"Snd_Show", L"Snd_Hide", L"Snd_Notes_Show", L"Snd_Notes_Hide",
                               L"Snd_Alarm", L"Snd_Button_Press", L"Snd_Button_Delete"}) {
      store.values[std::wstring(L"Sounds/") + key] = std::wstring(key) + L".wav";
    }
    view.answer = Answer::Cancel;
  }

  std::vector<std::wstring> playedBy(ButtonId button) {
    sounds.played.clear();
    click(button);
    return sounds.played;
  }
};

TEST_F(ButtonSounds, eachButtonHasItsOwn) {
  using Played = std::vector<std::wstring>;
  form().Form_Load();
  EXPECT_EQ(playedBy(ButtonId::Buttons_Delete), Played{L"Snd_Button_Delete.wav"});
  EXPECT_EQ(playedBy(ButtonId::Buttons_Close), Played{L"Snd_Hide.wav"});
  // The button has no sound of its own: what is heard is the notes that come or go.
  EXPECT_EQ(playedBy(ButtonId::Buttons_Down), Played{L"Snd_Notes_Show.wav"});
  for (const ButtonId id :
       {ButtonId::Buttons_main_01, ButtonId::Buttons_main_02, ButtonId::Buttons_main_03,
        ButtonId::Buttons_main_04, ButtonId::Buttons_main_05}) {
    EXPECT_EQ(playedBy(id), Played{L"Snd_Button_Press.wav"}) << static_cast<int>(id);
  }
}

TEST_F(ButtonSounds, theSoundComesBeforeTheAction) {
  form().Form_Load();
  std::size_t playedWhenAsked = 0;
  view.onAsk = [&] { playedWhenAsked = sounds.played.size(); };
  click(ButtonId::Buttons_Delete);
  EXPECT_EQ(playedWhenAsked, 1U);
}

TEST_F(ButtonSounds, withSoundsOffNoButtonMakesOneThoughPathsAreSet) {
  store.values[L"Sounds/Use_Sounds"] = L"False";
  form().Form_Load();
  for (const ButtonId id : kAllButtons) EXPECT_TRUE(playedBy(id).empty());
  form().pichook_MouseMove(515);
  EXPECT_TRUE(sounds.played.empty());
}

TEST_F(ButtonSounds, aButtonWithoutAPathIsSilent) {
  store.values[L"Sounds/Snd_Button_Press"] = L"";
  form().Form_Load();
  EXPECT_TRUE(playedBy(ButtonId::Buttons_main_05).empty());
}

TEST_F(ButtonSounds, aPressReleasedOutsideIsSilent) {
  form().Form_Load();
  form().Form_MouseDown(MouseButton::Left, middleOf(ButtonId::Buttons_main_05));
  form().mouseUp(MouseButton::Left, kNowhere);
  EXPECT_TRUE(sounds.played.empty());
}

}  // namespace
}  // namespace kalvora
