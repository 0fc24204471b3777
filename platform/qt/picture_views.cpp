// Controls with pictures: picture boxes and the tool bar.
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionFrame>
#include <QToolButton>
#include <utility>
#include <vector>

#include "control_view.h"
#include "convert.h"
#include "pictures.h"
#include "screen_drawing.h"

namespace platform::qt {
namespace {

class PictureView : public DrawnWidget, public ControlView {
 public:
  PictureView(PictureBox& box, QWidget* parent)
      : DrawnWidget(box.Drawing, kInPixels, parent), ControlView(box, *this), box_(box) {
    setAttribute(Qt::WA_OpaquePaintEvent, box.Opaque);
    setContextMenuPolicy(Qt::PreventContextMenu);  // the right button belongs to the form
    setContentsMargins(box.Border, box.Border, box.Border, box.Border);
  }
  void Update(Aspect aspect) override {
    if (aspect == Aspect::Drawing) DrawingChanged();
    ControlView::Update(aspect);
  }
  QAccessible::Role SpokenRole() const override { return QAccessible::Graphic; }

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
  void mousePressEvent(QMouseEvent* event) override { pressed_ = event->button(); }
  void mouseReleaseEvent(QMouseEvent* event) override {
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
      painter.setPen(QColor(0x60, 0x60, 0x60));
      painter.drawRect(rect().adjusted(0, 0, -1, -1));
    } else {
      style()->drawPrimitive(QStyle::PE_Frame, &option, &painter, this);
    }
  }

  PictureBox& box_;
  Qt::MouseButton pressed_ = Qt::NoButton;
};

/// Flat buttons in a row, with rules between their groups.
class ToolBarView : public QWidget, public ControlView {
 public:
  ToolBarView(ToolBar& bar, QWidget* parent) : QWidget(parent), ControlView(bar, *this), bar_(bar) {
    int left = kMargin;
    for (int index = 1; index <= bar_.Count(); ++index) {
      const bool separates = bar_.Image(index).Empty();
      buttons_.push_back(separates ? nullptr : MakeButton(index, left));
      if (separates) rules_.push_back(left + kSeparator / 2);
      left += separates ? kSeparator : kButton;
    }
  }
  void Update(Aspect aspect) override {
    if (aspect == Aspect::ToolTip) return UpdateToolTips();
    ControlView::Update(aspect);
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    painter.fillRect(rect(), palette().window());
    painter.setPen(palette().color(QPalette::Mid));
    for (const int x : rules_) painter.drawLine(x, kMargin + 2, x, height() - kMargin - 3);
    painter.drawLine(0, height() - 1, width(), height() - 1);
  }

 private:
  static constexpr int kButton = 24;  // pixels, wide and high
  static constexpr int kSeparator = 8;
  static constexpr int kMargin = 2;

  QToolButton* MakeButton(int index, int left) {
    auto* button = new QToolButton(this);
    const Picture& picture = bar_.Image(index);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::NoFocus);
    button->setIconSize(SizeOf(picture));
    button->setIcon(PixmapOf(picture, devicePixelRatioF()));
    button->setGeometry(left, kMargin, kButton, kButton);
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
  std::vector<int> rules_;             ///< their places from the left
};

}  // namespace

ControlView* MakeView(PictureBox& box, QWidget* parent) { return new PictureView(box, parent); }
ControlView* MakeView(ToolBar& bar, QWidget* parent) { return new ToolBarView(bar, parent); }

}  // namespace platform::qt
