// Every caption of every language fits its control, and every drawn text the room that it has, in the real font.
#include <QFontMetrics>
#include <fstream>

#include "../../platform/mnemonic.h"
#include "../../platform/qt/convert.h"
#include "../../storage/language_file.h"
#include "real_windows.h"

namespace {

using platform::Control;
using platform::Surface;
using platform::TextStep;
using platform::qt::ToQt;

constexpr int kMarkRoom = 20;   // pixels beside a check box or option button
constexpr int kButtonRoom = 8;  // within a button's edges
constexpr int kFrameRoom = 16;  // before and behind a frame's caption

/// The caption of a kind of control keeps to its place, but for what its mark or frame takes of it.
template <typename Kind>
void ExpectFits(Control& control, int taken, bool lines) {
  const auto* kind = dynamic_cast<Kind*>(&control);
  if (!kind) return;
  const QRect place = ToQt(control.Position.Get());
  const QFont font = ToQt(control.Face.Get());
  const QString text = ToQt(platform::WithoutMnemonic(kind->Caption));
  const QSize size =
      QFontMetrics(font).size(0, lines ? platform::qt::Wrapped(text, place.width() - taken, font) : text);
  const std::string where = control.Owner()->Name + "." + control.Name + " \"" + kind->Caption.Get() + "\"";
  EXPECT_LE(size.width(), place.width() - taken) << where;
  EXPECT_LE(size.height(), place.height() + 2) << where;
}

void ExpectCaptionsFit(platform::Container& container) {
  for (Control* control : container.Controls()) {
    ExpectFits<platform::Label>(*control, 0, true);
    ExpectFits<platform::CommandButton>(*control, kButtonRoom, false);
    ExpectFits<platform::CheckBox>(*control, kMarkRoom, true);
    ExpectFits<platform::OptionButton>(*control, kMarkRoom, true);
    ExpectFits<platform::Frame>(*control, kFrameRoom, false);
    if (auto* inner = dynamic_cast<platform::Container*>(control)) ExpectCaptionsFit(*inner);
  }
}

/// No drawn text runs into another or out of its surface.
void ExpectRoom(const Surface& surface, QSize size, double unitsPerPixel) {
  std::vector<std::pair<QRectF, std::string>> drawn;
  for (const platform::DrawingStep& step : surface.Steps()) {
    const auto* text = std::get_if<TextStep>(&step);
    if (!text || text->Text.empty()) continue;
    const QFontMetricsF metrics(ToQt(text->Face));
    QRectF ink = metrics.tightBoundingRect(ToQt(text->Text));
    ink.translate(text->X / unitsPerPixel, text->Y / unitsPerPixel + metrics.ascent());
    EXPECT_TRUE(ink.right() <= size.width() && ink.bottom() <= size.height()) << text->Text;
    for (const auto& [other, otherText] : drawn) {
      EXPECT_FALSE(ink.intersects(other)) << text->Text << " over " << otherText;
    }
    drawn.emplace_back(ink, text->Text);
  }
}

class RoomForTexts : public tests::RealWindows {
 protected:
  void UseLanguage(const std::string& name) {
    std::ifstream file(Services.Folder / "language.ini", std::ios::binary);
    Window.State.language.Languages[0] = name;
    ASSERT_EQ(storage::LoadTexts(file, Window.State.language), core::kTexts);
    for (platform::Form* form : Window.Desktop.Forms()) {
      if (auto* dialog = dynamic_cast<windows::Dialog*>(form)) dialog->SetCaptions();
    }
  }

  /// The widest figures that a sound game can show.
  void FillTheChart() {
    core::Game& game = Window.State.game;
    game.GameType = core::kFirstExpansion;
    game.DiceCount[12] = 500;
    game.EventCount[4] = 500;
    game.DiceLog.fill({6, 6, 4});
    game.ClockRunning = true;
    game.Clock = {32766, 32766};
    Window.DrawDiceStats();
    Window.DrawPlayerPanels();
    Window.F1_timSpielzeit_Timer();
    while (Window.State.AboutFrame < 8) Window.F3.timClock.Elapsed();
  }
};

TEST_F(RoomForTexts, EveryCaptionFitsItsControlAndEveryDrawnTextItsRoom) {
  for (const std::string& name : Window.State.language.Languages) {
    if (!storage::IsListed(Window.State.language, name)) continue;
    SCOPED_TRACE(name);
    UseLanguage(name);
    Window.F9.ShowStanding();
    for (platform::Form* form : Window.Desktop.Forms()) ExpectCaptionsFit(*form);
    FillTheChart();
    ExpectRoom(Window.F1.picW.Drawing, {609, 237}, 1);
    ExpectRoom(Window.F1.picInfoLine.Drawing, {609, 21}, 1);
    ExpectRoom(Window.F1.picSP(5).Drawing, {185, 57}, 1);
    ExpectRoom(Window.F3.picFlash.Drawing, {321, 67}, 1);
    ExpectRoom(Window.F1.Drawing, {633, 557}, platform::kTwipsPerPixel);
  }
}

}  // namespace
