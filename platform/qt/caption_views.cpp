// Controls with a caption: labels, buttons, check boxes, option buttons and frames.
#include <QAccessibleWidget>
#include <QCheckBox>
#include <QFontMetrics>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QStyle>
#include <QStyleOptionButton>
#include <algorithm>

#include "control_view.h"
#include "convert.h"
#include "pictures.h"

namespace platform::qt {
namespace {

constexpr int kMarkRoom = 20;   // pixels that the mark of a check box or option button takes
constexpr int kPictureGap = 4;  // pixels between picture and caption of a button

class LabelView : public QLabel, public ControlView {
 public:
  LabelView(Label& label, QWidget* parent) : QLabel(parent), ControlView(label, *this), label_(label) {
    setAlignment(ToQt(label.Align) | (label.Middle ? Qt::AlignVCenter : Qt::AlignTop));
    setWordWrap(true);
    setTextFormat(Qt::PlainText);
  }
  void Update(Aspect aspect) override {
    if (aspect == Aspect::Caption) setText(ToQt(label_.Caption.Get()).remove('\r'));
    ControlView::Update(aspect);
  }

 private:
  Label& label_;
};

/// A push button with its picture above its caption, both in the middle.
class ButtonView : public QPushButton, public ControlView {
 public:
  ButtonView(CommandButton& button, QWidget* parent)
      : QPushButton(parent), ControlView(button, *this), button_(button) {
    setAutoDefault(false);
    connect(this, &QPushButton::clicked, this, [&button] { button.Owner()->Click(button); });
  }
  void Update(Aspect aspect) override {
    if (aspect == Aspect::Caption) setText(ToQt(button_.Caption.Get()));
    ControlView::Update(aspect);
  }

 protected:
  void paintEvent(QPaintEvent* event) override {
    if (button_.Image.Get().Empty()) return QPushButton::paintEvent(event);
    QPainter painter(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    style()->drawControl(QStyle::CE_PushButtonBevel, &option, &painter, this);
    const QSize picture = SizeOf(button_.Image) * Zoom();
    const int gap = Zoomed(kPictureGap);
    const int line = fontMetrics().height();
    const int top = (height() - picture.height() - gap - line) / 2;
    painter.setOpacity(isEnabled() ? 1.0 : 0.4);
    Draw(painter, button_.Image, QPointF((width() - picture.width()) / 2, top));
    painter.setOpacity(1.0);
    const QRect below(0, top + picture.height() + gap, width(), line);
    style()->drawItemText(&painter, below, Qt::AlignCenter | Qt::TextShowMnemonic, option.palette, isEnabled(), text(),
                          QPalette::ButtonText);
  }

 private:
  CommandButton& button_;
};

class CheckView : public QCheckBox, public ControlView {
 public:
  CheckView(CheckBox& box, QWidget* parent) : QCheckBox(parent), ControlView(box, *this), box_(box) {
    connect(this, &QCheckBox::clicked, this, [this] {
      box_.Owner()->Click(box_);
      Update(Aspect::Value);  // the model may not have followed
    });
  }
  void Update(Aspect aspect) override {
    if (aspect == Aspect::Caption) setText(Wrapped(ToQt(box_.Caption.Get()), width() - Zoomed(kMarkRoom), font()));
    if (aspect == Aspect::Value) setChecked(box_.Value.Get() == 1);
    ControlView::Update(aspect);
  }

 private:
  CheckBox& box_;
};

/// A radio button that also reports the mouse button released over it.
class OptionView : public QRadioButton, public ControlView {
 public:
  OptionView(OptionButton& button, QWidget* parent)
      : QRadioButton(parent), ControlView(button, *this), button_(button) {
    connect(this, &QRadioButton::clicked, this, [this] {
      button_.Owner()->Click(button_);
      Update(Aspect::Value);
    });
  }
  void Update(Aspect aspect) override {
    if (aspect == Aspect::Caption) setText(Wrapped(ToQt(button_.Caption.Get()), width() - Zoomed(kMarkRoom), font()));
    if (aspect == Aspect::Value) setChecked(button_.Value);
    ControlView::Update(aspect);
  }

 protected:
  void mouseReleaseEvent(QMouseEvent* event) override {
    const bool inside = rect().contains(event->position().toPoint());
    QRadioButton::mouseReleaseEvent(event);
    if (inside) button_.Owner()->MouseUp(button_, ButtonOf(event->button()));
  }

 private:
  OptionButton& button_;
};

/// A frame with its caption in its upper line, so that all the room below is for the controls.
class FrameView : public QWidget, public ControlView {
 public:
  FrameView(Frame& frame, QWidget* parent) : QWidget(parent), ControlView(frame, *this), frame_(frame) {}

  void Update(Aspect aspect) override {
    ControlView::Update(aspect);
    if (aspect == Aspect::Caption) update();
    setAccessibleName(ToQt(frame_.Caption.Get()));
  }
  QAccessibleInterface* MakeSpoken() override { return new QAccessibleWidget(this, QAccessible::Grouping); }

 protected:
  void paintEvent(QPaintEvent*) override {
    const int captionX = Zoomed(8);
    const int captionAir = Zoomed(3);  // on either side of the caption
    const double rounding = Zoomed(3);
    const double edge = std::max(1, Zoomed(1)) / 2.0;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QString caption = ToQt(frame_.Caption.Get());
    const int line = fontMetrics().height() / 2;
    painter.setPen(QPen(palette().color(QPalette::Mid), 2 * edge));
    painter.drawRoundedRect(QRectF(rect()).adjusted(edge, line + edge, -edge, -edge), rounding, rounding);
    if (caption.isEmpty()) return;
    const int room = fontMetrics().horizontalAdvance(caption) + 2 * captionAir;
    painter.fillRect(QRect(captionX - captionAir, 0, room, fontMetrics().height()), palette().window());
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(captionX, fontMetrics().ascent(), caption);
  }

 private:
  Frame& frame_;
};

}  // namespace

ControlView* MakeView(Label& label, QWidget* parent) { return new LabelView(label, parent); }
ControlView* MakeView(CommandButton& button, QWidget* parent) { return new ButtonView(button, parent); }
ControlView* MakeView(CheckBox& box, QWidget* parent) { return new CheckView(box, parent); }
ControlView* MakeView(OptionButton& button, QWidget* parent) { return new OptionView(button, parent); }
ControlView* MakeView(Frame& frame, QWidget* parent) { return new FrameView(frame, parent); }

QString Wrapped(const QString& caption, int width, const QFont& font) {
  const QFontMetrics metrics(font);
  QString lines;
  QString line;
  for (const QString& word : caption.split(' ')) {
    const QString longer = line.isEmpty() ? word : line + ' ' + word;
    if (!line.isEmpty() && metrics.horizontalAdvance(longer.trimmed()) > width) {
      lines += line.trimmed() + '\n';
      line = word;
    } else {
      line = longer;
    }
  }
  return lines + line;
}

}  // namespace platform::qt
