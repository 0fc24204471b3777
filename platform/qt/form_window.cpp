#include "form_window.h"

#include <QCloseEvent>
#include <QMenu>
#include <QPaintEvent>
#include <QPainter>
#include <QScreen>
#include <algorithm>
#include <utility>

#include "convert.h"
#include "key_codes.h"

namespace platform::qt {
namespace {

Qt::WindowFlags FlagsFor(const Form& form, bool isDialog) {
  Qt::WindowFlags flags = Qt::CustomizeWindowHint | Qt::WindowTitleHint;
  flags |= isDialog ? Qt::Dialog : (Qt::Window | Qt::WindowMinimizeButtonHint);
  if (form.HasCloseBox == CloseBox::Present) flags |= Qt::WindowCloseButtonHint | Qt::WindowSystemMenuHint;
  return flags;
}

}  // namespace

ClientWidget::ClientWidget(Form& form, QWidget* parent) : DrawnWidget(form.Drawing, InTwips, parent), form_(form) {
  setAttribute(Qt::WA_OpaquePaintEvent, form.Ground.has_value());
}

void ClientWidget::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  Paint(painter, event->region(), form_.Ground ? std::optional(ToQt(*form_.Ground)) : std::nullopt, form_.Image);
}

FormWindow::FormWindow(Form& form, QWidget* owner)
    : QWidget(owner, FlagsFor(form, owner != nullptr)), form_(form), client_(new ClientWidget(form, this)) {
  setObjectName(ToQt(form.Name));
  setFont(ToQt(Font{}));
  if (form_.MenuBar) BuildMenuBar();
  // A menu that closes needs a widget for the focus to return to.
  if (menuBar_) client_->setFocusPolicy(Qt::ClickFocus);
  MakeViews(form_, client_);
  FitClient();
  form_.MenuBarHeight = qRound((menuBar_ ? menuBar_->height() : 0) * kTwipsPerPixel / Zoom());
  // Before the native window is made; otherwise the window manager chooses the place.
  if (!owner) move(ToQt(form_.Position.Get()).topLeft());
  form_.View = this;
  FormChanged(Aspect::Title);
}

FormWindow::~FormWindow() {
  form_.View = nullptr;
  if (form_.MenuBar) form_.MenuBar->OnChange = nullptr;
}

/// The client area lies below the menu bar.
void FormWindow::FitClient() {
  const QSize size = ToQt(form_.Position.Get()).size();
  const int menuHeight = menuBar_ ? menuBar_->sizeHint().height() : 0;
  if (menuBar_) menuBar_->setGeometry(0, 0, size.width(), menuHeight);
  client_->setGeometry(0, menuHeight, size.width(), size.height());
  setFixedSize(size.width(), size.height() + menuHeight);
}

void FormWindow::Rescale() {
  setFont(ToQt(Font{}));
  for (ControlView* view : std::as_const(views_)) view->Rescale();
  client_->RescaleDrawing();
  FitClient();
  KeepOnScreen();
}

void FormWindow::KeepOnScreen() {
  if (!isVisible() || OnWayland()) return;
  const QRect room = screen()->availableGeometry();
  QRect whole = frameGeometry();
  // A dialog that has just been shown gets its frame later; it is like the main window's.
  if (parentWidget() && whole == geometry())
    whole.setSize(size() + parentWidget()->frameGeometry().size() - parentWidget()->size());
  const QPoint corner(std::max(std::min(whole.left(), room.right() + 1 - whole.width()), room.left()),
                      std::max(std::min(whole.top(), room.bottom() + 1 - whole.height()), room.top()));
  if (corner != whole.topLeft()) move(corner);
}

void FormWindow::MakeViews(const Control& container, QWidget* parent) {
  for (Control* control : container.Controls()) {
    ControlView* view = MakeView(*control, parent);
    views_.insert(control, view);
    view->UpdateAll();
    MakeViews(*control, &view->Widget());
  }
}

QWidget* FormWindow::WidgetOf(const Control& control) const {
  const ControlView* view = views_.value(&control);
  return view ? &view->Widget() : nullptr;
}

void FormWindow::BuildMenuBar() {
  menuBar_ = new QMenuBar(this);
  menuBar_->setNativeMenuBar(false);
  QMenu* menu = nullptr;
  for (MenuItem& item : form_.MenuBar->Items()) {
    if (item.Level == 0) {
      menu = menuBar_->addMenu(QString());
      actions_[&item] = menu->menuAction();
    } else if (item.Separates()) {
      menu->addSeparator();
    } else {
      actions_[&item] = menu->addAction(QString(), menu, [this, &item] { form_.ClickMenu(item); });
    }
    ShowCaption(item);
  }
  form_.MenuBar->OnChange = [this](MenuItem& item) { ShowCaption(item); };
}

/// The names of keys beside the menu entries are of the toolkit's language.
void FormWindow::changeEvent(QEvent* event) {
  if (event->type() == QEvent::LanguageChange && form_.MenuBar) {
    for (MenuItem& item : form_.MenuBar->Items()) ShowCaption(item);
  }
  QWidget::changeEvent(event);
}

/// The shortcut is only shown, not given to Qt: keys reach the form by its routing alone, so that none passes its lock.
void FormWindow::ShowCaption(MenuItem& item) {
  QAction* action = actions_.value(&item);
  if (!action) return;
  const QString shortcut = TextOf(item.Key);
  const QString caption = ToQt(item.Caption.Get());
  action->setText(shortcut.isEmpty() ? caption : caption + '\t' + shortcut);
}

void FormWindow::ControlChanged(Control& control, Aspect aspect) {
  if (&control == &form_) {
    FormChanged(aspect);
  } else {
    if (ControlView* view = views_.value(&control)) view->Update(aspect);
  }
}

void FormWindow::FormChanged(Aspect aspect) {
  if (aspect == Aspect::Title) setWindowTitle(ToQt(form_.Caption.Get()));
  if (aspect == Aspect::Picture) client_->update();
  if (aspect == Aspect::Drawing) client_->DrawingChanged();
}

void FormWindow::FollowVisible() {
  if (!form_.Visible) return hide();
  if (!placed_) {
    const Place place = form_.Position;
    // A dialog that comes before the main window is put in the middle of the screen.
    const bool alone = parentWidget() && !parentWidget()->isVisible();
    const QPoint middle = screen()->availableGeometry().center() - rect().center();
    const QPoint origin = parentWidget() ? parentWidget()->frameGeometry().topLeft() : QPoint();
    const QPoint own = origin + ToQt(place).topLeft();
    // A dialog without a place is left to the window manager.
    const bool anywhere = parentWidget() && place.Left == 0 && place.Top == 0;
    if (alone || !anywhere) move(alone ? middle : own);
    placed_ = !alone;
  }
  show();
  KeepOnScreen();
  raise();
  activateWindow();
}

void FormWindow::closeEvent(QCloseEvent* event) {
  event->ignore();  // the form decides what its close box does
  // On X11 a close box that was not asked for is not shown, and nothing else stands for it; compositors show one.
  if (form_.HasCloseBox == CloseBox::Present || OnWayland()) form_.PressCloseBox();
}

void FormWindow::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  if (menuBar_) client_->setFocus();
  if (Control* focus = form_.Focus()) ControlChanged(*focus, Aspect::Focus);
}

void FormWindow::moveEvent(QMoveEvent* event) {
  QWidget::moveEvent(event);
  LearnFrame();
}

void FormWindow::LearnFrame() {
  const QSize frame = frameGeometry().size() - geometry().size();
  form_.FrameWidth = frame.width() * kTwipsPerPixel;
  form_.FrameHeight = frame.height() * kTwipsPerPixel;
}

}  // namespace platform::qt
