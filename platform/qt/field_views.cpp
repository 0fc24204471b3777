// Controls with text to edit: fields and lists.
#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSignalBlocker>
#include <QTextOption>
#include <QToolTip>
#include <algorithm>

#include "control_view.h"
#include "convert.h"

namespace platform::qt {
namespace {

class LineView : public QLineEdit, public ControlView {
 public:
  LineView(TextBox& box, QWidget* parent) : QLineEdit(parent), ControlView(box, *this), box_(box) {
    setReadOnly(box.ReadOnly);
    setAlignment(ToQt(box.Align));
    // Also for a text that is pasted, composed or set by an assistive tool.
    connect(this, &QLineEdit::textChanged, this, [&box](const QString& text) {
      box.Owner()->Type(box, text.normalized(QString::NormalizationForm_C).toStdString());
    });
  }
  void Update(Aspect aspect) override {
    if (aspect == Aspect::Text) ShowText(ToQt(box_.Text.Get()));
    if (aspect == Aspect::Notice) ShowNotice(ToQt(box_.Notice.Get()));
    ControlView::Update(aspect);
  }

 private:
  void ShowNotice(const QString& notice) {
    setAccessibleDescription(notice);
    QToolTip::showText(mapToGlobal(rect().bottomLeft()), notice, this);
  }
  /// A text from the program keeps the cursor's distance from the end in a field that the user is typing in, and is
  /// selected in one that was empty, so that the next key replaces it. In other fields the beginning of a long text is
  /// seen.
  void ShowText(const QString& shown) {
    if (text() == shown) return;
    const QSignalBlocker ownChange(*this);
    const bool wasEmpty = text().isEmpty();
    const auto behind = hasFocus() ? text().size() - cursorPosition() : shown.size();
    setText(shown);
    setCursorPosition(static_cast<int>(std::max<qsizetype>(shown.size() - behind, 0)));
    if (wasEmpty && hasFocus()) selectAll();
  }

  TextBox& box_;
};

/// Several lines of text with a scroll bar.
class PaneView : public QPlainTextEdit, public ControlView {
 public:
  PaneView(TextBox& box, QWidget* parent) : QPlainTextEdit(parent), ControlView(box, *this), box_(box) {
    setReadOnly(box.ReadOnly);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setWordWrapMode(QTextOption::WordWrap);  // breaking an endless word would take minutes
  }
  void Update(Aspect aspect) override {
    if (aspect == Aspect::Text) setPlainText(ToQt(box_.Text.Get()));
    ControlView::Update(aspect);
  }

 private:
  TextBox& box_;
};

/// The current row, from which arrow keys and wheel start, is always that of the text. Therefore the toolkit finds no
/// typed text that it would take for a pick when the field is left.
class ComboView : public QComboBox, public ControlView {
 public:
  ComboView(ComboBox& box, QWidget* parent) : QComboBox(parent), ControlView(box, *this), box_(box) {
    setEditable(true);
    setInsertPolicy(QComboBox::NoInsert);
    setCompleter(nullptr);
    connect(this, &QComboBox::activated, this, [&box](int index) { box.Owner()->Pick(box, index); });
    connect(this, &QComboBox::editTextChanged, this,
            [&box](const QString& text) { box.Owner()->Type(box, text.toStdString()); });
  }
  void Update(Aspect aspect) override {
    const QSignalBlocker ownChange(*this);
    if (aspect == Aspect::List) FillList();
    if (aspect == Aspect::Text || aspect == Aspect::List) ShowText(ToQt(box_.Text.Get()));
    // The field inside has the keyboard.
    if (aspect == Aspect::Spoken) lineEdit()->setAccessibleName(ToQt(box_.SpokenName.Get()));
    ControlView::Update(aspect);
  }

 private:
  void FillList() {
    clear();
    for (const std::string& item : box_.List()) addItem(ToQt(item));
  }
  void ShowText(const QString& text) {
    const int cursor = currentText() == text ? lineEdit()->cursorPosition() : static_cast<int>(text.size());
    const int row = findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive);
    // Each of these forgets what can be undone or is selected.
    if (row != currentIndex()) setCurrentIndex(row);
    if (text != currentText()) setEditText(text);
    if (cursor != lineEdit()->cursorPosition()) lineEdit()->setCursorPosition(cursor);
  }

  ComboBox& box_;
};

}  // namespace

ControlView* MakeView(TextBox& box, QWidget* parent) {
  if (box.MultiLine) return new PaneView(box, parent);
  return new LineView(box, parent);
}
ControlView* MakeView(ComboBox& box, QWidget* parent) { return new ComboView(box, parent); }

}  // namespace platform::qt
