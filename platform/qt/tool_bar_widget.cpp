#include "tool_bar_widget.h"

#include <QPainter>

#include "../form.h"
#include "pictures.h"

namespace platform::qt {
namespace {

constexpr int kButton = 24;  // pixels, wide and high
constexpr int kSeparator = 8;
constexpr int kMargin = 2;

}  // namespace

ToolBarWidget::ToolBarWidget(ToolBar& bar, QWidget* parent)
    : QWidget(parent), bar_(bar), buttons_(static_cast<std::size_t>(bar.Count())) {
  int left = kMargin;
  for (int index = 1; index <= bar.Count(); ++index) {
    if (bar.Image(index).Empty()) {
      rules_.push_back(left + kSeparator / 2);
      left += kSeparator;
    } else {
      AddButton(index, left);
      left += kButton;
    }
  }
}

void ToolBarWidget::AddButton(int index, int left) {
  auto* button = new QToolButton(this);
  const Picture& picture = bar_.Image(index);
  button->setAutoRaise(true);
  button->setFocusPolicy(Qt::NoFocus);
  button->setIconSize(SizeOf(picture));
  button->setIcon(PixmapOf(picture, devicePixelRatioF()));
  button->setGeometry(left, kMargin, kButton, kButton);
  QObject::connect(button, &QToolButton::clicked, button, [this, index] { bar_.Owner()->ClickTool(bar_, index); });
  buttons_[static_cast<std::size_t>(index - 1)] = button;
}

void ToolBarWidget::UpdateToolTips() {
  for (int index = 1; index <= bar_.Count(); ++index) {
    QToolButton* button = buttons_[static_cast<std::size_t>(index - 1)];
    if (!button) continue;
    const QString text = QString::fromStdString(bar_.ToolTip(index));
    button->setToolTip(text);
    button->setAccessibleName(text);
  }
}

void ToolBarWidget::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), palette().window());
  painter.setPen(palette().color(QPalette::Mid));
  for (const int x : rules_) painter.drawLine(x, kMargin + 2, x, height() - kMargin - 3);
  painter.drawLine(0, height() - 1, width(), height() - 1);
}

}  // namespace platform::qt
