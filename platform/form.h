// A form: a window with its controls, and the routing of keys and clicks to them. A view (or a test) hands in what the
// user does; the form decides which control it reaches.
//
// The rules: a form that is hidden or disabled takes no input, not even its shortcuts. A key acts on its release, and
// only in the form that saw its press; a key that is held acts once. Where a release opens or closes a form, keys that
// went down after that key act in the next form, so that overlapping typing loses none; keys that were down before have
// no effect. A form that previews keys sees each release before the control in focus.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "control.h"
#include "controls.h"
#include "menu.h"
#include "timer.h"

namespace platform {

class Desktop;
class Form;

/// Shows a form. It hears of every change in the model and decides nothing.
class FormView {
 public:
  virtual ~FormView() = default;
  /// `control` may be the form itself.
  virtual void ControlChanged(Control& control, Aspect aspect) = 0;
};

enum class CloseBox { None, Present };

class Form : public Container {
 public:
  /// A hidden form with a client area in twips.
  Form(Desktop& desktop, std::string name, int clientWidth, int clientHeight, CloseBox closeBox = CloseBox::Present);
  ~Form() override;

  Property<std::string> Caption{*this, Aspect::Title};
  Property<Picture> Image{*this, Aspect::Picture};  ///< background of the client area
  Surface Drawing;                                  ///< the form's own surface, in twips
  bool KeyPreview = false;                          ///< the form sees each key before the control in focus
  bool PressesFocusedButtons = true;  ///< by Space and Enter; else these press the default and cancel button only
  const CloseBox HasCloseBox;
  std::unique_ptr<Menu> MenuBar;
  std::vector<Timer*> Timers;
  std::optional<Colour> Ground;  ///< colour around the background; none: that of the desktop
  int MenuBarHeight = 0;         ///< twips that a menu bar adds above the client area
  /// Twips that the window system adds; 0 before it has reported them. They are the same at each size of the windows,
  /// so that what is drawn by them keeps its place when the window grows.
  int FrameWidth = 0;
  int FrameHeight = 0;
  FormView* View = nullptr;

  /// The close box was pressed; a form without handler is not closed.
  std::function<void()> Close;

  int Width() const { return Position.Get().Width + FrameWidth; }                     ///< outer width, in twips
  int Height() const { return Position.Get().Height + MenuBarHeight + FrameHeight; }  ///< outer height, in twips
  void MoveTo(int left, int top);  ///< twips from the screen's top left
  void Show();                     ///< in front of the others, even if it is visible already

  /// Whether the form takes keys and clicks now.
  bool AcceptsInput() const;

  // What the user does. Nothing has an effect while the form takes no input.
  void KeyPress(KeyCode code, Modifiers with);
  void KeyRelease(KeyCode code, Modifiers with);
  void Click(Control& control);  ///< button, check box, option button
  void ClickMenu(MenuItem& item);
  void ClickTool(ToolBar& bar, int index);
  void Type(Control& control, const std::string& text);  ///< the whole text that a field holds now
  void Pick(ComboBox& combo, int index);
  void MouseUp(Control& control, MouseButton button);  ///< released over the control on which it was pressed
  void PressCloseBox();
  /// The window has lost the keyboard: keys that are held will be released elsewhere.
  void ForgetKeys() { held_.clear(); }

  /// The control in focus: the one set last if it can be used, else the first that can; null if there is none.
  Control* Focus() const;
  void SetFocus(Control& control);

  void PropertyChanged(Aspect aspect) override;
  Form* Owner() override { return this; }

 private:
  bool Takes(Control& control) const { return AcceptsInput() && control.Usable(); }
  void RouteRelease(KeyCode code, Modifiers with);
  bool PressDialogKey(KeyCode code);
  void MoveInGroup(int step);
  void MoveFocus(int step);
  std::vector<Control*> TabOrder() const;

  Desktop& desktop_;
  std::vector<KeyCode> held_;  ///< in the order in which they went down
  Control* focus_ = nullptr;
};

}  // namespace platform
