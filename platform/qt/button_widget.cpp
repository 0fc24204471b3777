#include "button_widget.h"

#include <QFontMetrics>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionButton>

#include "pictures.h"

namespace platform::qt {

ButtonWidget::ButtonWidget(CommandButton& button, QWidget* parent) : QPushButton(parent), button_(button) {
  setAutoDefault(false);
}

void ButtonWidget::paintEvent(QPaintEvent* event) {
  if (button_.Image.Get().Empty()) return QPushButton::paintEvent(event);
  QPainter painter(this);
  QStyleOptionButton option;
  initStyleOption(&option);
  style()->drawControl(QStyle::CE_PushButtonBevel, &option, &painter, this);
  const QSize picture = SizeOf(button_.Image);
  constexpr int kGap = 4;
  const int top = (height() - picture.height() - kGap - fontMetrics().height()) / 2;
  painter.setOpacity(isEnabled() ? 1.0 : 0.4);
  Draw(painter, button_.Image, QPointF((width() - picture.width()) / 2, top));
  painter.setOpacity(1.0);
  const QRect below(0, top + picture.height() + kGap, width(), fontMetrics().height());
  style()->drawItemText(&painter, below, Qt::AlignCenter | Qt::TextShowMnemonic, option.palette, isEnabled(), text(),
                        QPalette::ButtonText);
}

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
