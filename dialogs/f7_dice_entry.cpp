#include "f7_dice_entry.h"

#include "../core/rolls.h"
#include "../core/texts.h"
#include "../storage/code_page.h"
#include "../windows/form_metrics.h"
#include "../windows/image_lists.h"

namespace dialogs {
namespace {

namespace text = core::text;
using platform::Place;
using windows::BlackDie;
using windows::EventDie;
using windows::RedDie;
using windows::Repeat;
using windows::SpokenDie;

constexpr int kPitch = 600;  // twips from one choice to the next, and from one row to the next

constexpr int kClientWidth = 5160;
constexpr int kClientHeight = 2910;
constexpr auto kBlackDice = Repeat<6>({120, 120, 495, 495}, kPitch, 0);
constexpr auto kRedDice = Repeat<6>({120, 720, 495, 495}, kPitch, 0);
constexpr auto kEventDice = Repeat<4>({120, 1320, 495, 495}, kPitch, 0);
constexpr auto kHotkeys = Repeat<4>({240, 1920, 255, 255}, kPitch, 0);
constexpr auto kArrows = Repeat<3>({3780, 120, 480, 480}, 0, kPitch);
constexpr auto kChosen = Repeat<3>({4440, 120, 495, 495}, 0, kPitch);
constexpr Place kNoOkPlace{120, 2460, 1455, 375};
constexpr Place kOkPlace{3300, 2460, 1815, 375};

// The rows of picGewurfelt and picPfeil.
constexpr int kBlackRow = 0;
constexpr int kRedRow = 1;
constexpr int kEventRow = 2;

}  // namespace

F7::F7(const windows::Context& context)
    : Dialog(context, "F7", kClientWidth, kClientHeight),
      picSW(this, "picSW", kBlackDice),
      picRW(this, "picRW", kRedDice),
      picEW(this, "picEW", kEventDice),
      lblHotkeyShow(this, "lblHotkeyShow", kHotkeys),
      picPfeil(this, "picPfeil", kArrows),
      picGewurfelt(this, "picGewurfelt", kChosen),
      cmdNoOK(this, "cmdNoOK", kNoOkPlace),
      cmdOK(this, "cmdOK", kOkPlace) {
  KeyPreview = true;
  PressesFocusedButtons = false;
  Caption = "Würfeln";
  cmdNoOK.Caption = "Abbruch (Esc)";
  cmdNoOK.Cancel = true;
  cmdNoOK.Click = [this] { F7_cmdNoOK_Click(); };
  cmdOK.Caption = "OK (Enter)";
  cmdOK.Default = true;
  cmdOK.Click = [this] { F7_cmdOK_Click(); };
  KeyUp = [this](int keyCode, platform::Modifiers) { F7_Form_KeyUp(keyCode); };
  Close = [this] { F7_cmdNoOK_Click(); };
  for (int i = 0; i < core::kDieFaces; ++i) {
    picSW(i).MouseUp = [this, i](platform::MouseButton) { F7_picSW_MouseUp(i); };
    picRW(i).MouseUp = [this, i](platform::MouseButton) { F7_picRW_MouseUp(i); };
    picSW(i).Border = picRW(i).Border = 1;
  }
  for (int i = 0; i < core::kEventFaces; ++i) {
    picEW(i).MouseUp = [this, i](platform::MouseButton) { F7_picEW_MouseUp(i); };
    picEW(i).Border = 1;
    lblHotkeyShow(i).Face = platform::Font{"Verdana", 9.75, true};
    lblHotkeyShow(i).Align = platform::Alignment::Centre;
    lblHotkeyShow(i).Caption = "?";
  }
  for (int row = kBlackRow; row <= kEventRow; ++row) {
    picPfeil(row).Image = windows::kArrow;
    picPfeil(row).Opaque = false;
    picGewurfelt(row).Border = 1;
  }
}

void F7::SetPictures() {
  for (int i = 0; i < core::kDieFaces; ++i) {
    picRW(i).Image = RedDie(i + 1);
    picSW(i).Image = BlackDie(i + 1);
  }
  for (int i = 0; i < core::kEventFaces; ++i) picEW(i).Image = EventDie(i + 1);
}

void F7::ShowHotkeys() {
  for (int i = 0; i < core::kEventFaces; ++i) {
    const int code = state().settings.EventHotkey[i + 1];
    lblHotkeyShow(i).Caption = storage::CharacterOf(code);
  }
}

void F7::SetCaptions() {
  Caption = state().Text(text::EnterRoll);
  cmdNoOK.Caption = state().Text(text::Cancel);
  cmdOK.Caption = state().Text(text::Ok);
  for (int i = 0; i < core::kDieFaces; ++i) {
    picSW(i).SpokenName = SpokenDie(state(), kBlackRow, i + 1);
    picRW(i).SpokenName = SpokenDie(state(), kRedRow, i + 1);
  }
  for (int i = 0; i < core::kEventFaces; ++i) picEW(i).SpokenName = SpokenDie(state(), kEventRow, i + 1);
}

/// Opens the dialog with what is entered so far.
void F7::Start() {
  ShowEventRow(core::HasEventDie(state().game));
  ShowChosen();
  Open();
}

/// Shows the dice chosen so far, blank ones for the others, and whether they can be recorded.
void F7::ShowChosen() {
  const core::Entry& entry = state().entry;
  picGewurfelt(kBlackRow).Image = BlackDie(entry.Die1);
  picGewurfelt(kRedRow).Image = RedDie(entry.Die2);
  picGewurfelt(kEventRow).Image = EventDie(entry.EventDie);
  picGewurfelt(kBlackRow).SpokenName = SpokenDie(state(), kBlackRow, entry.Die1);
  picGewurfelt(kRedRow).SpokenName = SpokenDie(state(), kRedRow, entry.Die2);
  picGewurfelt(kEventRow).SpokenName = SpokenDie(state(), kEventRow, entry.EventDie);
  cmdOK.Enabled = core::EntryComplete(state());
}

void F7::ShowEventRow(bool visible) {
  for (int i = 0; i < core::kEventFaces; ++i) {
    picEW(i).Visible = visible;
    lblHotkeyShow(i).Visible = visible;
  }
  picPfeil(kEventRow).Visible = visible;
  picGewurfelt(kEventRow).Visible = visible;
}

void F7::PrepareDiceDialog() {
  core::BeginEntry(state().entry);
  Start();
}

void F7::OpenDiceDialogByKey(int value) {
  core::BeginEntryWithDigit(state().entry, static_cast<std::int16_t>(value));
  Start();
}

void F7::F7_Form_KeyUp(int keyCode) {
  const core::Entered entered = core::EnterKey(state(), keyCode);
  ShowChosen();
  if (entered == core::Entered::EventFace) core::RecordRoll(state(), screen());
}

void F7::F7_picSW_MouseUp(int index) {
  state().entry.Die1 = static_cast<std::int16_t>(index + 1);
  ShowChosen();
}

void F7::F7_picRW_MouseUp(int index) {
  state().entry.Die2 = static_cast<std::int16_t>(index + 1);
  ShowChosen();
}

void F7::F7_picEW_MouseUp(int index) {
  state().entry.EventDie = static_cast<std::int16_t>(index + 1);
  ShowChosen();
}

void F7::F7_cmdOK_Click() { core::RecordRoll(state(), screen()); }

void F7::F7_cmdNoOK_Click() {
  state().entry.DiceEntryStage = 0;
  Leave();
}

}  // namespace dialogs
