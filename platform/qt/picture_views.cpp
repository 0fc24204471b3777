// Controls with pictures: picture boxes and the tool bar.
#include <QAccessibleWidget>
#include <QBasicTimer>
#include <QGuiApplication>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleHints>
#include <QStyleOptionFrame>
#include <QStylePainter>
#include <QToolButton>
#include <algorithm>
#include <utility>
#include <vector>

#include "control_view.h"
#include "convert.h"
#include "pictures.h"
#include "screen_drawing.h"

namespace platform::qt {
namespace {

/// A picture that can be clicked offers a screen reader both mouse buttons as actions.
class SpokenPicture : public QAccessibleWidget {
 public:
  SpokenPicture(PictureBox& box, QWidget* widget)
      : QAccessibleWidget(widget, box.MouseUp ? QAccessible::Button : QAccessible::Graphic), box_(box) {}

  QStringList actionNames() const override {
    if (!box_.MouseUp) return {};
    return {QAccessibleActionInterface::pressAction(), QAccessibleActionInterface::showMenuAction()};
  }
  void doAction(const QString& name) override {
    const bool first = name == QAccessibleActionInterface::pressAction();
    if (actionNames().contains(name)) box_.Owner()->MouseUp(box_, first ? MouseButton::Left : MouseButton::Right);
  }

 private:
  PictureBox& box_;
};

class PictureView : public DrawnWidget, public ControlView {
 public:
  PictureView(PictureBox& box, QWidget* parent)
      : DrawnWidget(box.Drawing, InPixels, parent), ControlView(box, *this), box_(box) {
    setAttribute(Qt::WA_OpaquePaintEvent, box.Opaque);
    setContextMenuPolicy(Qt::PreventContextMenu);  // the right button belongs to the form
  }
  void Update(Aspect aspect) override {
    if (aspect == Aspect::Drawing) DrawingChanged();
    ControlView::Update(aspect);
  }
  void Rescale() override {
    ControlView::Rescale();
    const int border = Zoomed(box_.Border);
    setContentsMargins(border, border, border, border);
    RescaleDrawing();
  }
  QAccessibleInterface* MakeSpoken() override { return new SpokenPicture(box_, this); }

 protected:
  void paintEvent(QPaintEvent* event) override {
    QPainter painter(this);
    std::optional<QColor> ground;
    if (box_.Ground) {
      ground = ToQt(*box_.Ground);
    } else if (box_.Opaque) {
      ground = palette().color(QPalette::Window);
    }
    Paint(painter, event->region(), ground, box_.Image, contentsRect().topLeft());
    PaintBorder(painter);
  }
  /// A long press by a finger or a pen is a click by the second button.
  void mousePressEvent(QMouseEvent* event) override {
    using Pointer = QPointingDevice::PointerType;
    pressed_ = event->button();
    const bool isTouch = event->pointerType() == Pointer::Finger || event->pointerType() == Pointer::Pen;
    if (!isTouch || pressed_ != Qt::LeftButton) return;
    longPress_.start(QGuiApplication::styleHints()->mousePressAndHoldInterval(), this);
  }
  void mouseMoveEvent(QMouseEvent* event) override {
    if (!rect().contains(event->position().toPoint())) longPress_.stop();
  }
  void timerEvent(QTimerEvent* event) override {
    if (event->timerId() != longPress_.timerId()) return DrawnWidget::timerEvent(event);
    longPress_.stop();
    if (std::exchange(pressed_, Qt::NoButton) == Qt::LeftButton) box_.Owner()->MouseUp(box_, MouseButton::Right);
  }
  void mouseReleaseEvent(QMouseEvent* event) override {
    longPress_.stop();
    const bool pressedHere = std::exchange(pressed_, Qt::NoButton) == event->button();
    if (!pressedHere || !rect().contains(event->position().toPoint())) return;
    box_.Owner()->MouseUp(box_, ButtonOf(event->button()));
  }

 private:
  void PaintBorder(QPainter& painter) const {
    if (box_.Border == 0) return;
    QStyleOptionFrame option;
    option.initFrom(this);
    option.lineWidth = box_.Border;
    option.state |= QStyle::State_Sunken;
    if (box_.Border == 1) {
      const double edge = std::max(1, Zoomed(1));
      painter.setPen(QPen(QColor(0x60, 0x60, 0x60), edge, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
      painter.drawRect(QRectF(rect()).adjusted(edge / 2, edge / 2, -edge / 2, -edge / 2));
    } else {
      style()->drawPrimitive(QStyle::PE_Frame, &option, &painter, this);
    }
  }

  PictureBox& box_;
  Qt::MouseButton pressed_ = Qt::NoButton;
  QBasicTimer longPress_;
};

/// Draws its picture for the screen that it is on now.
class ToolButton : public QToolButton {
 public:
  ToolButton(const Picture& picture, QWidget* parent) : QToolButton(parent), picture_(picture) {
    setAutoRaise(true);
    setFocusPolicy(Qt::NoFocus);
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QStylePainter painter(this);
    QStyleOptionToolButton option;
    initStyleOption(&option);
    option.iconSize = SizeOf(picture_) * Zoom();
    option.icon = QIcon(PixmapOf(picture_, devicePixelRatioF()));
    painter.drawComplexControl(QStyle::CC_ToolButton, option);
  }

 private:
  const Picture picture_;
};

/// Flat buttons in a row, with rules between their groups.
class ToolBarView : public QWidget, public ControlView {
 public:
  ToolBarView(ToolBar& bar, QWidget* parent) : QWidget(parent), ControlView(bar, *this), bar_(bar) {
    for (int index = 1; index <= bar_.Count(); ++index) {
      buttons_.push_back(bar_.Image(index).Empty() ? nullptr : MakeButton(index));
    }
  }
  void Rescale() override {
    ControlView::Rescale();
    rules_.clear();
    int left = kMargin;
    for (QToolButton* button : buttons_) {
      if (!button) rules_.push_back(Zoomed(left + kSeparator / 2));
      if (button) button->setGeometry(Zoomed(left), Zoomed(kMargin), Zoomed(kButton), Zoomed(kButton));
      left += button ? kButton : kSeparator;
    }
    update();
  }
  void Update(Aspect aspect) override {
    if (aspect == Aspect::ToolTip) return UpdateToolTips();
    ControlView::Update(aspect);
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    painter.fillRect(rect(), palette().window());
    const QColor ink = palette().color(QPalette::Mid);
    const int line = std::max(1, Zoomed(1)), air = Zoomed(kMargin + 2);
    for (const int x : rules_) painter.fillRect(x, air, line, height() - 2 * air, ink);
    painter.fillRect(0, height() - line, width(), line, ink);
  }

 private:
  static constexpr int kButton = 24;  // pixels, wide and high
  static constexpr int kSeparator = 8;
  static constexpr int kMargin = 2;

  QToolButton* MakeButton(int index) {
    auto* button = new ToolButton(bar_.Image(index), this);
    connect(button, &QToolButton::clicked, button, [this, index] { bar_.Owner()->ClickTool(bar_, index); });
    return button;
  }
  void UpdateToolTips() {
    for (int index = 1; index <= bar_.Count(); ++index) {
      QToolButton* button = buttons_[static_cast<std::size_t>(index - 1)];
      if (!button) continue;
      button->setToolTip(ToQt(bar_.ToolTip(index)));
      button->setAccessibleName(ToQt(bar_.ToolTip(index)));
    }
  }

  ToolBar& bar_;
  std::vector<QToolButton*> buttons_;  ///< by index - 1; null for a separator
  std::vector<int> rules_;             ///< their places from the left, in pixels of the screen
};

}  // namespace

ControlView* MakeView(PictureBox& box, QWidget* parent) { return new PictureView(box, parent); }
ControlView* MakeView(ToolBar& bar, QWidget* parent) { return new ToolBarView(bar, parent); }

}  // namespace platform::qt
