// What the program is measured against: the least that a window of its kind can be in Qt. It has the same size, a menu
// bar, tool buttons, the same pictures as labels, a chart that is written anew at a key, and a strip that is painted
// each second; it holds no rule, no language and no dialog.
// The pictures are those of the folder img beside it.
#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QMainWindow>
#include <QMenuBar>
#include <QPainter>
#include <QStyle>
#include <QTimer>
#include <QToolButton>

namespace {

constexpr int kWidth = 633;
constexpr int kHeight = 557;
constexpr int kToolButtons = 13;
constexpr int kSteps = 60;  // boxes and texts of the chart

/// A picture, decoded once.
class Picture : public QLabel {
 public:
  Picture(const QString& file, const QRect& place, QWidget* parent) : QLabel(parent) {
    setPixmap(QPixmap(file));
    setGeometry(place);
  }
};

class Chart : public Picture {
 public:
  using Picture::Picture;
  void Count() { ++count_; }

 protected:
  void paintEvent(QPaintEvent* event) override {
    Picture::paintEvent(event);
    QPainter painter(this);
    QFont font("DejaVu Sans");
    font.setPixelSize(11);
    painter.setFont(font);
    painter.setPen(Qt::white);
    for (int i = 0; i < kSteps; ++i) {
      const QPoint at(5 + 120 * (i % 5), 3 + 19 * (i / 5));
      painter.fillRect(QRect(at + QPoint(60, 0), QSize(50, 13)), QColor(0x22, 0x8B, 0x22));
      painter.drawText(at + QPoint(0, 12), QString::number(count_ + i) + " x");
    }
  }

 private:
  int count_ = 0;
};

class Window : public QMainWindow {
 public:
  explicit Window(const QString& folder) {
    for (const char* title : {"Game", "Extra", "Help"}) {
      QMenu* menu = menuBar()->addMenu(title);
      for (int i = 0; i < 6; ++i) menu->addAction("An entry of the menu");
    }
    setFixedSize(kWidth, kHeight + menuBar()->sizeHint().height());
    auto* client = new Picture(folder + "/basis_back.jpg", QRect(0, 0, kWidth, kHeight), this);
    setCentralWidget(client);
    for (int i = 0; i < kToolButtons; ++i) {
      auto* button = new QToolButton(client);
      button->setAutoRaise(true);
      button->setIcon(style()->standardIcon(QStyle::StandardPixmap(QStyle::SP_DesktopIcon + i)));
      button->setGeometry(2 + 24 * i, 2, 24, 24);
    }
    for (int i = 0; i < 6; ++i) {
      const QRect place(8 + 192 * (i / 2), 36 + 64 * (i % 2), 185, 57);
      new Picture(folder + QString("/basis_s%1.jpg").arg(i + 1), place, client);
    }
    chart_ = new Chart(folder + "/basis_picw.jpg", QRect(8, 168, 609, 237), client);
    new Picture(folder + "/basis_last6.jpg", QRect(8, 416, 609, 21), client);
    timer_.setInterval(1000);
    connect(&timer_, &QTimer::timeout, this, [client] { client->update(0, kHeight - 100, kWidth, 100); });
    timer_.start();
  }

 protected:
  void keyPressEvent(QKeyEvent*) override {
    chart_->Count();
    update();
    centralWidget()->update();
    chart_->update();
  }

 private:
  Chart* chart_;
  QTimer timer_;
};

}  // namespace

int main(int count, char** arguments) {
  QApplication application(count, arguments);
  QApplication::setStyle("Fusion");
  Window window(QApplication::applicationDirPath() + "/img");
  window.show();
  return QApplication::exec();
}
