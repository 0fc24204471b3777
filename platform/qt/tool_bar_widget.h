// The tool bar: flat buttons in a row, with rules between their groups.
#pragma once

#include <QToolButton>
#include <QWidget>
#include <vector>

#include "../controls.h"

namespace platform::qt {

class ToolBarWidget : public QWidget {
 public:
  ToolBarWidget(ToolBar& bar, QWidget* parent);
  void UpdateToolTips();

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void AddButton(int index, int left);

  ToolBar& bar_;
  std::vector<QToolButton*> buttons_;  ///< by index - 1; null for a separator
  std::vector<int> rules_;             ///< their places from the left
};

}  // namespace platform::qt
