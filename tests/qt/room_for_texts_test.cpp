// Every caption of every language fits its control, and every drawn text the room that it has, in the real font.
#include <QFontMetrics>
#include <fstream>

#include "../../platform/mnemonic.h"
#include "../../platform/qt/button_widget.h"
#include "../../platform/qt/convert.h"
#include "../../platform/qt/fonts.h"
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

/// Measures captions; what does not fit fails with the control's name.
class Measure : public platform::ControlVisitor {
 public:
  explicit Measure(std::string language) : language_(std::move(language)) {}

  void Visit(platform::Label& label) override { Fits(label, label.Caption, 0, true); }
  void Visit(platform::CommandButton& button) override { Fits(button, button.Caption, kButtonRoom, false); }
  void Visit(platform::CheckBox& box) override { Fits(box, box.Caption, kMarkRoom, true); }
  void Visit(platform::OptionButton& button) override { Fits(button, button.Caption, kMarkRoom, true); }
  void Visit(platform::TextBox&) override {}
  void Visit(platform::ComboBox&) override {}
  void Visit(platform::PictureBox&) override {}
  void Visit(platform::ToolBar&) override {}
  void Visit(platform::Frame& frame) override {
    Fits(frame, frame.Caption, kFrameRoom, false);
    All(frame);
  }

  void All(platform::Container& container) {
    for (Control* control : container.Controls()) control->Accept(*this);
  }

 private:
  void Fits(Control& control, const std::string& caption, int taken, bool lines) {
    const QRect place = ToQt(control.Position.Get());
    const QFont font = ToQt(control.Face.Get());
    const QFontMetrics metrics(font);
    const QString text = ToQt(platform::WithoutMnemonic(caption));
    const QString wrapped = lines ? platform::qt::Wrapped(text, place.width() - taken, font) : text;
    const QSize size = metrics.size(0, wrapped);
    const std::string where = language_ + ": " + control.Owner()->Name + "." + control.Name + " \"" + caption + "\"";
    EXPECT_LE(size.width(), place.width() - taken) << where;
    EXPECT_LE(size.height(), place.height() + 2) << where;
  }

  std::string language_;
};

/// No drawn text runs into another or out of its surface.
void ExpectRoom(const Surface& surface, QSize size, double unitsPerPixel, const std::string& where) {
  std::vector<std::pair<QRectF, std::string>> drawn;
  for (const platform::DrawingStep& step : surface.Steps()) {
    const auto* text = std::get_if<TextStep>(&step);
    if (!text || text->Text.empty()) continue;
    const QFontMetricsF metrics(ToQt(text->Face));
    QRectF ink = metrics.tightBoundingRect(ToQt(text->Text));
    ink.translate(text->X / unitsPerPixel, text->Y / unitsPerPixel + metrics.ascent());
    EXPECT_LE(ink.right(), size.width()) << where << ": \"" << text->Text << "\"";
    EXPECT_LE(ink.bottom(), size.height()) << where << ": \"" << text->Text << "\"";
    for (const auto& [other, otherText] : drawn) {
      EXPECT_FALSE(ink.intersects(other)) << where << ": \"" << text->Text << "\" over \"" << otherText << "\"";
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

TEST_F(RoomForTexts, EveryCaptionFitsItsControl) {
  for (const std::string& name : Window.State.language.Languages) {
    if (!storage::IsListed(Window.State.language, name)) continue;
    UseLanguage(name);
    Window.F9.ShowStanding();
    Measure measure(name);
    for (platform::Form* form : Window.Desktop.Forms()) measure.All(*form);
  }
}

TEST_F(RoomForTexts, EveryDrawnTextHasItsRoom) {
  for (const std::string& name : Window.State.language.Languages) {
    if (!storage::IsListed(Window.State.language, name)) continue;
    UseLanguage(name);
    FillTheChart();
    ExpectRoom(Window.F1.picW.Drawing, {609, 237}, 1, name + ", chart");
    ExpectRoom(Window.F1.picInfoLine.Drawing, {609, 21}, 1, name + ", last six");
    ExpectRoom(Window.F1.picSP(5).Drawing, {185, 57}, 1, name + ", panel");
    ExpectRoom(Window.F3.picFlash.Drawing, {321, 67}, 1, "about");
    ExpectRoom(Window.F1.Drawing, {633, 557}, platform::kTwipsPerPixel, name + ", clocks");
  }
}

}  // namespace
