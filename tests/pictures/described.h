// A form in lines of text: itself, its menu, and each control with what a user sees of it, drawings step by step.
#pragma once

#include "../../platform/form.h"
#include "../drawn.h"

namespace tests {

/// In quotes behind a word, with line ends written out; nothing for an empty text.
inline std::string Quoted(const std::string& word, const std::string& text) {
  std::string line = word + "\"";
  for (const char c : text) line += c == '\r' ? "\\r" : c == '\n' ? "\\n" : std::string(1, c);
  return text.empty() ? "" : line + "\"";
}

inline std::string Flag(const char* word, bool holds) { return holds ? word : ""; }
inline std::string Shown(const platform::Picture& picture) { return picture.Empty() ? "" : " " + picture.Name; }
inline std::string Painted(const std::optional<platform::Colour>& ground) {
  return ground ? " on " + Hex(*ground) : "";
}

inline std::string Aligned(platform::Alignment side) {
  return side == platform::Alignment::Left ? "" : side == platform::Alignment::Right ? " right" : " centred";
}

inline std::string Keys(const platform::Shortcut& keys) {
  if (keys.Code == platform::kKeyUnknown) return "";
  const bool isFunction = keys.Code >= platform::kKeyF1, isLetter = keys.Code >= 'A' && !isFunction;
  return " " + Flag("Shift+", keys.With.Shift) + Flag("Ctrl+", keys.With.Control) + Flag("Alt+", keys.With.Alt) +
         (isLetter     ? std::string(1, static_cast<char>(keys.Code))
          : isFunction ? "F" + std::to_string(keys.Code - platform::kKeyF1 + 1)
                       : std::to_string(keys.Code));
}

/// Of a control of a kind that has one; else null.
inline const std::string* CaptionOf(const platform::Control& control) {
  using namespace platform;
  if (const auto* label = dynamic_cast<const Label*>(&control)) return &label->Caption.Get();
  if (const auto* button = dynamic_cast<const CommandButton*>(&control)) return &button->Caption.Get();
  if (const auto* box = dynamic_cast<const CheckBox*>(&control)) return &box->Caption.Get();
  if (const auto* option = dynamic_cast<const OptionButton*>(&control)) return &option->Caption.Get();
  const auto* frame = dynamic_cast<const Frame*>(&control);
  return frame ? &frame->Caption.Get() : nullptr;
}

/// What only this kind of control has, beside a caption.
inline std::string OfItsKind(const platform::Control& control) {
  using namespace platform;
  if (const auto* label = dynamic_cast<const Label*>(&control)) return Aligned(label->Align);
  if (const auto* button = dynamic_cast<const CommandButton*>(&control))
    return Shown(button->Image) + Flag(" default", button->Default) + Flag(" cancel", button->Cancel);
  if (const auto* text = dynamic_cast<const TextBox*>(&control)) {
    return Quoted(" text ", text->Text) + Aligned(text->Align) + Flag(" read-only", text->ReadOnly) +
           Flag(" of lines", text->MultiLine) + Quoted(" notice ", text->Notice);
  }
  if (const auto* box = dynamic_cast<const CheckBox*>(&control)) return box->Value == 1 ? " [x]" : " [ ]";
  if (const auto* option = dynamic_cast<const OptionButton*>(&control)) return option->Value ? " (o)" : " ( )";
  if (const auto* combo = dynamic_cast<const ComboBox*>(&control)) {
    std::string line = Quoted(" text ", combo->Text);
    for (const std::string& item : combo->List()) line += Quoted(" | ", item);
    return line;
  }
  if (const auto* picture = dynamic_cast<const PictureBox*>(&control)) {
    return Shown(picture->Image) + Painted(picture->Ground) + Flag(" clear", !picture->Opaque) +
           (picture->Border > 0 ? " border " + std::to_string(picture->Border) : "");
  }
  return "";
}

inline std::string Described(const platform::Control& control, const platform::Control* focus) {
  const platform::Place place = control.Position;
  const platform::Font face = control.Face;
  const std::string* const caption = CaptionOf(control);
  return control.Name + " " + At(place.Left, place.Top) + " " + std::to_string(place.Width) + "x" +
         std::to_string(place.Height) + Quoted(" ", caption ? *caption : "") + OfItsKind(control) +
         Flag(" hidden", !control.Visible) + Flag(" disabled", !control.Enabled) + Flag(" focus", &control == focus) +
         (face == platform::Font{} ? "" : " " + face.Name + " " + Number(face.Size) + Flag("+", face.Bold)) +
         Quoted(" tip ", control.ToolTipText) + Quoted(" spoken ", control.SpokenName);
}

inline std::string Drawing(const platform::Surface& surface) {
  std::string lines;
  for (const std::string& step : Drawn(surface)) lines += "    " + step + "\n";
  return lines;
}

inline std::string DescribedControls(const platform::Container& container, const platform::Control* focus) {
  std::string lines;
  for (const platform::Control* control : container.Controls()) {
    lines += Described(*control, focus) + "\n";
    if (const auto* picture = dynamic_cast<const platform::PictureBox*>(control)) lines += Drawing(picture->Drawing);
    if (const auto* bar = dynamic_cast<const platform::ToolBar*>(control)) {
      for (int i = 1; i <= bar->Count(); ++i) {
        lines += "    " + std::to_string(i) + Shown(bar->Image(i)) + Quoted(" tip ", bar->ToolTip(i)) + "\n";
      }
    }
    if (const auto* inner = dynamic_cast<const platform::Container*>(control)) {
      lines += DescribedControls(*inner, focus) + "end of " + control->Name + "\n";
    }
  }
  return lines;
}

inline std::string Described(const platform::Form& form) {
  std::string lines = Described(form, nullptr) + Quoted(" ", form.Caption) + Shown(form.Image) + Painted(form.Ground) +
                      Flag(" keys", form.KeyPreview) +
                      Flag(" no-close-box", form.HasCloseBox == platform::CloseBox::None) + "\n";
  for (const platform::Timer* timer : form.Timers) {
    lines += timer->Name + " each " + std::to_string(timer->Interval) + Flag(" off", !timer->Enabled) + "\n";
  }
  if (form.MenuBar) {
    for (const platform::MenuItem& item : form.MenuBar->Items()) {
      lines += Flag("    ", item.Level > 0) + item.Name + Quoted(" ", item.Caption) + Keys(item.Key) + "\n";
    }
  }
  return lines + Drawing(form.Drawing) + DescribedControls(form, form.Focus());
}

}  // namespace tests
