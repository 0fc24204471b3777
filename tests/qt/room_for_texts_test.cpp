// In every language the toolkit says no word of another one, every caption fits its control, and every drawn
// text the room that it has, in the real font, at every size of windows.
#include <QAction>
#include <QFileSystemModel>
#include <QFontMetrics>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QRegularExpression>
#include <QSet>
#include <QTimer>
#include <memory>

#include "../../platform/mnemonic.h"
#include "../../platform/qt/convert.h"
#include "../../platform/qt/qt_services.h"
#include "real_windows.h"

namespace {

using platform::Control;
using platform::Surface;
using platform::TextStep;
using platform::qt::ToQt;
using platform::qt::Zoomed;

constexpr int kMarkRoom = 20;   // pixels beside a check box or option button
constexpr int kButtonRoom = 8;  // within a button's edges
constexpr int kFrameRoom = 16;  // before and behind a frame's caption

/// A caption keeps to the place of its control, but for what its mark or frame takes of it.
void ExpectCaptionsFit(const Control& container) {
  for (const Control* control : container.Controls()) {
    ExpectCaptionsFit(*control);
    const std::string* caption = tests::CaptionOf(*control);
    if (!caption) continue;
    const bool label = dynamic_cast<const platform::Label*>(control);
    const bool button = dynamic_cast<const platform::CommandButton*>(control);
    const bool frame = dynamic_cast<const platform::Frame*>(control);
    const QRect place = ToQt(control->Position.Get());
    const int room = place.width() - Zoomed(label ? 0 : button ? kButtonRoom : frame ? kFrameRoom : kMarkRoom);
    const QFont font = ToQt(control->Face.Get());
    const QString text = ToQt(platform::WithoutMnemonic(*caption));
    const QSize size = QFontMetrics(font).size(0, button || frame ? text : platform::qt::Wrapped(text, room, font));
    EXPECT_TRUE(size.width() <= room && size.height() <= place.height() + 2) << control->Name << " " << *caption;
  }
}

/// No drawn text runs into another or out of its surface.
void ExpectRoom(const Surface& surface, QSize size, double unitsPerPixel) {
  const double scale = platform::qt::Zoom() / unitsPerPixel;
  size *= platform::qt::Zoom();
  std::vector<std::pair<QRectF, std::string>> drawn;
  for (const platform::DrawingStep& step : surface.Steps()) {
    const auto* text = std::get_if<TextStep>(&step);
    if (!text || text->Text.empty()) continue;
    const QFontMetricsF metrics(ToQt(text->Face));
    QRectF ink = metrics.tightBoundingRect(ToQt(text->Text));
    ink.translate(text->X * scale, text->Y * scale + metrics.ascent());
    EXPECT_TRUE(ink.right() <= size.width() && ink.bottom() <= size.height()) << text->Text;
    for (const auto& [other, otherText] : drawn) {
      EXPECT_FALSE(ink.intersects(other)) << text->Text << " over " << otherText;
    }
    drawn.emplace_back(ink, text->Text);
  }
}

/// Words of the program itself, the same in every language: its name, its list of thanks, files, the way back from a
/// language that nobody at the table reads.
const QString kProgramsOwn =
    "Orvan Begleiter Readme txt obg PDF pdf OK Private Homepage orvan begleiter example mail hi Danke Thanks to all "
    "who "
    "play beta testing support Sprache auswählen Select Language Enter Esc";

QStringList WordsOf(QString text) {
  static const QRegularExpression notLetters("[^\\p{L}]+");
  return text.remove('&').split(notLetters, Qt::SkipEmptyParts);
}

/// All that a window of the toolkit says, but for the names of files and languages.
QStringList Said(QWidget& window) {
  QStringList said{window.windowTitle()};
  for (QWidget* widget : window.findChildren<QWidget*>()) {
    if (!widget->isVisibleTo(&window) && !qobject_cast<QMenu*>(widget)) continue;
    said += {widget->toolTip(), widget->accessibleName(), widget->accessibleDescription()};
    if (auto* label = qobject_cast<QLabel*>(widget)) said += label->text();
    if (auto* button = qobject_cast<QAbstractButton*>(widget)) said += button->text();
    if (auto* header = qobject_cast<QHeaderView*>(widget); header && header->model())
      for (int i = 0; i < header->count(); ++i) said += header->model()->headerData(i, Qt::Horizontal).toString();
    for (QAction* action : widget->actions()) {
      said += {action->text(), action->toolTip(), action->shortcut().toString(QKeySequence::NativeText)};
    }
    if (auto* field = qobject_cast<QLineEdit*>(widget)) {
      const std::unique_ptr<QMenu> menu(field->createStandardContextMenu());
      for (QAction* action : menu->actions()) said += action->text();
    }
  }
  return said;
}

class RoomForTexts : public tests::RealWindows {
 protected:
  void UseLanguage(const std::string& name) {
    Window.F8.OpenSettings();
    Window.F8.comSelectLang.Text = name;
    Window.F8.cmdOK.Click();
    ASSERT_EQ(Window.State.language.Languages[0], name);
  }

  std::vector<std::string> Languages() const {
    const auto& listed = Window.State.language.Languages;
    return {listed.begin() + 1, listed.end()};
  }

  /// The words of the language and of the program itself, and the names of languages.
  QSet<QString> OwnWords() const {
    QStringList words = WordsOf(kProgramsOwn);
    for (const std::string& text : Window.State.language.Text) words += WordsOf(ToQt(text));
    for (const std::string& name : Languages()) words += WordsOf(ToQt(name));
    return {words.begin(), words.end()};
  }

  /// What a question, the file dialog in both forms and a field's menu say in the toolkit's own words.
  static QStringList SaidByToolkit(platform::qt::QtServices& real) {
    QStringList said{QFileSystemModel().myComputer().toString()};
    const auto read = [&said] {
      QTimer::singleShot(0, [&said] {
        QWidget* box = QApplication::activeModalWidget();
        said += Said(*box);
        for (QPushButton* button : box->findChildren<QPushButton*>())
          EXPECT_LE(button->sizeHint().width(), button->width()) << button->text().toStdString();
        for (QLabel* label : box->findChildren<QLabel*>())
          EXPECT_LE(label->sizeHint().width(), label->width()) << label->text().toStdString();
        box->close();
      });
    };
    read();
    real.MessageBox("", "Orvan Begleiter", platform::Buttons::YesNo, platform::Icon::None);
    for (const bool opens : {true, false}) {
      platform::FileDialog dialog;
      dialog.OpensFile = opens;
      dialog.Filter = " (*.obg)|*.obg";
      dialog.InitDir = "/";
      dialog.DialogTitle = "Orvan Begleiter";
      read();
      real.ChooseFile(dialog);
    }
    return said;
  }

  void ExpectAllFits(int size) {
    SCOPED_TRACE(size);
    platform::qt::SetZoom(size);
    for (platform::Form* form : Window.Desktop.Forms()) ExpectCaptionsFit(*form);
    ExpectRoom(Window.F1.picW.Drawing, {609, 237}, 1);
    ExpectRoom(Window.F1.picInfoLine.Drawing, {609, 21}, 1);
    ExpectRoom(Window.F1.picSP(5).Drawing, {185, 57}, 1);
    ExpectRoom(Window.F3.picFlash.Drawing, {321, 67}, 1);
    ExpectRoom(Window.F1.Drawing, {633, 557}, platform::kTwipsPerPixel);
    platform::qt::SetZoom(platform::qt::kNaturalSize);
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
  for (const std::string& name : Languages()) {
    SCOPED_TRACE(name);
    UseLanguage(name);
    Window.F9.ShowStanding();
    FillTheChart();
    for (const int percent : platform::qt::kSizes) ExpectAllFits(percent);
  }
}

TEST_F(RoomForTexts, TheToolkitSaysNoWordOfAnotherLanguage) {
  platform::qt::QtServices real({1, 0, 0});
  for (const std::string& name : Languages()) {
    SCOPED_TRACE(name);
    UseLanguage(name);
    real.Speak(Services.Words);
    for (int i = 0; i < 3; ++i) QCoreApplication::processEvents();  // by application and window to the menus
    QStringList said = Said(WindowOf(Window.F1)) + Said(WindowOf(Window.F8));
    said += SaidByToolkit(real);
    const QSet<QString> own = OwnWords();
    for (const QString& text : said) {
      for (const QString& word : WordsOf(text)) {
        EXPECT_TRUE(word.size() == 1 || own.contains(word)) << word.toStdString() << " in " << text.toStdString();
      }
    }
  }
  real.Speak({"Suomi", "", {}});
  EXPECT_EQ(QCoreApplication::translate("QPlatformTheme", "Cancel").toStdString(), "Peru") << "the toolkit's own word";
}

}  // namespace
