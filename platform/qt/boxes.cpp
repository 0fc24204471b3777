// Message boxes and the file dialog.
#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QListView>
#include <QMessageBox>
#include <QPointer>
#include <QScopeGuard>
#include <QSplitter>
#include <QStyledItemDelegate>
#include <QTreeView>
#include <QUrl>
#include <algorithm>
#include <functional>

#include "convert.h"
#include "qt_services.h"

namespace platform::qt {
namespace {

constexpr int kLeastBoxWidth = 260;  // pixels at 100 in 100
constexpr int kTitleButtons = 120;   // those that a title bar's icon and buttons take

/// The window below a new box: the active one or, between two boxes, the last one that is still visible. Null before
/// there is any window.
QWidget* WindowBelow() {
  static QPointer<QWidget> last;
  if (QWidget* active = QApplication::activeWindow()) last = active;
  while (last && !last->isVisible()) last = last->parentWidget();
  return last;
}

/// The program's type, captions without icons, no indent where there is no icon, and room for the whole title.
void Tidy(QMessageBox& box) {
  box.setFont(QApplication::font());
  for (QAbstractButton* button : box.buttons()) button->setIcon({});
  auto* grid = qobject_cast<QGridLayout*>(box.layout());
  if (!grid) return;
  QLayoutItem* first = grid->itemAtPosition(0, 0);
  if (QSpacerItem* indent = first ? first->spacerItem() : nullptr) indent->changeSize(0, 0);
  if (auto* text = box.findChild<QLabel*>("qt_msgbox_label")) {
    int row = 0, column = 0, rows = 0, columns = 0;
    grid->getItemPosition(grid->indexOf(text), &row, &column, &rows, &columns);
    grid->setColumnStretch(column, 1);
  }
  QFont bold = box.font();
  bold.setBold(true);
  const int title = QFontMetrics(bold).horizontalAdvance(box.windowTitle()) + Zoomed(kTitleButtons);
  grid->addItem(new QSpacerItem(std::max(Zoomed(kLeastBoxWidth), title), 0), grid->rowCount(), 0, 1,
                grid->columnCount());
}

/// From "name|pattern|name|pattern" to the toolkit's filters. "*.*" means all files here, also those without a dot.
QStringList NameFilters(const std::string& filter) {
  const QStringList parts = ToQt(filter).split('|');
  QStringList filters;
  for (int i = 0; i + 1 < parts.size(); i += 2) {
    const QString name = parts[i].section(" (", 0, 0);
    filters += name + " (" + (parts[i + 1] == "*.*" ? "*" : parts[i + 1]) + ")";
  }
  return filters;
}

/// The toolkit's columns are too narrow for a date. The names get the room that size and date leave; the type is seen
/// from the name.
void FitColumns(const QFileDialog& chooser) {
  auto* files = chooser.findChild<QTreeView*>("treeView");
  if (!files) return;
  constexpr int kTypeColumn = 2;
  files->setColumnHidden(kTypeColumn, true);
  files->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
  files->header()->setSectionResizeMode(0, QHeaderView::Stretch);
}

/// Shows one of the places at the side under a name that its folder does not bear.
class PlaceNames : public QStyledItemDelegate {
 public:
  PlaceNames(QObject* parent, QUrl place, QString name)
      : QStyledItemDelegate(parent), place_(std::move(place)), name_(std::move(name)) {}

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
    QStyledItemDelegate::initStyleOption(option, index);
    if (index.data(kUrlRole).toUrl() == place_) option->text = name_;
    const QVariant enabled = index.data(kEnabledRole);
    if (enabled.isValid() && !enabled.toBool()) option->state &= ~QStyle::State_Enabled;
  }

 private:
  // Of the toolkit's own model of places.
  static constexpr int kUrlRole = Qt::UserRole + 1;
  static constexpr int kEnabledRole = Qt::UserRole + 2;

  QUrl place_;
  QString name_;
};

/// Adds a place at the side, under a name of its own.
void AddPlace(QFileDialog& chooser, const QString& folder, const QString& name) {
  auto* places = chooser.findChild<QListView*>("sidebar");
  if (!places || folder.isEmpty() || !QFileInfo(folder).isDir()) return;
  const QUrl place = QUrl::fromLocalFile(folder);
  QList<QUrl> urls = chooser.sidebarUrls();
  urls.removeAll(place);
  chooser.setSidebarUrls(urls << place);
  places->setItemDelegate(new PlaceNames(places, place, name));
  QAbstractItemModel* model = places->model();
  model->setData(model->index(model->rowCount() - 1, 0), name, Qt::AccessibleTextRole);
}

/// The column of places is as wide as its longest name.
void FitPlaces(const QFileDialog& chooser) {
  auto* places = chooser.findChild<QListView*>("sidebar");
  auto* columns = chooser.findChild<QSplitter*>("splitter");
  if (!places || !columns) return;
  const int room = places->sizeHintForColumn(0) + 2 * places->frameWidth();
  columns->setSizes({room, chooser.width() - room});
}

/// The toolkit's own dialog on every desktop: only the extension that was asked for is ever added to a name. It stays
/// open below an objection to the name.
class Chooser : public QFileDialog {
 public:
  Chooser(Services& services, const FileDialog& dialog)
      : QFileDialog(WindowBelow(), ToQt(dialog.DialogTitle), ToQt(dialog.InitDir)),
        places_(sidebarUrls()),
        services_(services),
        objection_(dialog.Objection) {
    setAcceptMode(dialog.OpensFile ? QFileDialog::AcceptOpen : QFileDialog::AcceptSave);
    setFileMode(dialog.OpensFile ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
    setNameFilters(NameFilters(dialog.Filter));
    setDefaultSuffix(ToQt(dialog.DefaultExt));
    FitColumns(*this);
    AddPlace(*this, ToQt(dialog.SideFolder), ToQt(dialog.SideName));
    FitPlaces(*this);
    const QString before = ToQt(dialog.FileName);
    if (!before.isEmpty() && QFileInfo(before).dir().exists()) selectFile(before);
  }
  /// The toolkit remembers the places for all programs.
  ~Chooser() override { setSidebarUrls(places_); }
  std::string Chosen() const { return QDir::toNativeSeparators(selectedFiles().value(0)).toStdString(); }

  void accept() override {
    const bool goesThere = QFileInfo(ToQt(Chosen())).isDir();
    const std::string objection = objection_ && !goesThere ? objection_(Chosen()) : std::string();
    if (objection.empty()) return QFileDialog::accept();
    services_.MessageBox(objection);
  }

 private:
  const QList<QUrl> places_;  ///< without the one of its own
  Services& services_;
  const std::function<std::string(const std::string&)> objection_;
};

}  // namespace

Answer QtServices::MessageBox(const std::string& text, const std::string& title, Buttons buttons, Icon icon) {
  QMessageBox box(WindowBelow());
  box.setTextFormat(Qt::PlainText);
  box.setText(ToQt(text));
  box.setWindowTitle(title.empty() ? QApplication::applicationName() : ToQt(title));
  if (icon == Icon::Critical) box.setIcon(QMessageBox::Critical);
  if (buttons == Buttons::Ok) {
    box.setStandardButtons(QMessageBox::Ok);
  } else {
    box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
    box.setDefaultButton(QMessageBox::No);
    box.setEscapeButton(QMessageBox::No);
  }
  Tidy(box);
  const int pressed = box.exec();
  if (buttons == Buttons::Ok) return Answer::Ok;
  return pressed == QMessageBox::Yes ? Answer::Yes : Answer::No;
}

bool QtServices::ChooseFile(FileDialog& dialog) {
  // Some window managers lose the keyboard when a box and the dialog below it close at the same time.
  const auto activateBelow = qScopeGuard([to = QPointer<QWidget>(WindowBelow())] {
    if (to) to->activateWindow();
  });
  Chooser chooser(*this, dialog);
  if (chooser.exec() != QDialog::Accepted) return false;
  dialog.FileName = chooser.Chosen();
  return true;
}

}  // namespace platform::qt
