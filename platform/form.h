// A form: a window with its controls, and the way of every key and click to them. The routing lives here, so it holds
// without any window: a view (or a test) hands in what the user does, and the form decides whom it reaches.
//
// Rules of the routing: a form that is hidden or disabled takes nothing, its shortcuts included. A key counts on its
// release, and only in the form that saw its press; a key that is held counts once. Where a release opens or closes a
// form, keys that went down after that key are the next form's, so that overlapping typing loses none; what was down
// before stays without effect. A form that previews keys sees each release before the control in focus, and there Space
// and Enter press no button but the default one.
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

/// What shows a form; it follows the changes that the model tells it of and decides nothing.
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
  bool KeyPreview = false;
  const CloseBox HasCloseBox;
  std::unique_ptr<Menu> MenuBar;
  std::vector<Timer*> Timers;    ///< those that live on the form
  std::optional<Colour> Ground;  ///< seen where the background is not; none: the desktop's own
  int MenuBarHeight = 0;         ///< twips that a menu bar adds above the client area
  int FrameWidth = 0;            ///< twips that the window system adds; 0 until it has told
  int FrameHeight = 0;
  FormView* View = nullptr;

  /// The close box was pressed; a form without handler is not closed.
  std::function<void()> Close;

  int Width() const { return Position.Get().Width + FrameWidth; }                     ///< outer width, in twips
  int Height() const { return Position.Get().Height + MenuBarHeight + FrameHeight; }  ///< outer height, in twips
  void MoveTo(int left, int top);  ///< twips from the screen's top left
  void Show();                     ///< in front of the others, even if it is visible already

  /// Whether a key or click that comes now is the form's.
  bool AcceptsInput() const;

  // What the user does; each is without effect while the form takes no input.
  void KeyPress(KeyCode code, Modifiers with);
  void KeyRelease(KeyCode code, Modifiers with);
  void Click(Control& control);  ///< button, check box, option button
  void ClickMenu(MenuItem& item);
  void ClickTool(ToolBar& bar, int index);
  void Type(Control& control, const std::string& text);  ///< the whole text that a field holds now
  void Pick(ComboBox& combo, int index);
  void MouseUp(Control& control, MouseButton button);  ///< released over the control on which it was pressed
  void PressCloseBox();
  /// The window lost the keyboard: a key still held will be released elsewhere.
  void ForgetKeys() { held_.clear(); }

  /// The control in focus: the one last set while it can be used, else the first that can; null if there is none.
  Control* Focus() const;
  void SetFocus(Control& control);

  void PropertyChanged(Aspect aspect) override;
  void Accept(ControlVisitor&) override {}

 private:
  bool Takes(Control& control) const { return AcceptsInput() && control.Usable(); }
  void RouteRelease(KeyCode code, Modifiers with);
  bool PressDialogKey(KeyCode code);
  void MoveOption(int step);
  CommandButton* ButtonFor(KeyCode code) const;
  void MoveFocus(int step);
  std::vector<Control*> TabOrder() const;

  Desktop& desktop_;
  std::vector<KeyCode> held_;  ///< in the order in which they went down
  Control* focus_ = nullptr;
};

}  // namespace platform
