#include "desktop/style_sheet.h"

namespace quixair::desktop {

const char* const kStyleSheet = R"(
QMainWindow, QMdiSubWindow { background: @window; }
QMdiSubWindow > QWidget { background: @window; }
QMessageBox QLabel, QInputDialog QLabel { font-size: 11pt; }
QMessageBox QPushButton, QInputDialog QPushButton { min-width: 84px; min-height: 24px; }
QToolTip { background: @tip; color: @text; border: 1px solid @line; padding: 4px; }
QStatusBar { background: @bar; border-top: 1px solid @line; }
QStatusBar::item { border: none; }
QMenuBar { background: @bar; border-bottom: 1px solid @line; padding: 2px; }
QMenuBar::item { padding: 5px 10px; border-radius: 4px; }
QMenuBar::item:selected { background: @hover; }
QMenu { background: @base; border: 1px solid @line; padding: 4px; }
QMenu::item { padding: 6px 26px 6px 14px; border-radius: 4px; }
QMenu::item:selected { background: @accent; color: @accent_text; }
QMenu::item:disabled { color: @faint; }
QMenu::separator { height: 1px; background: @line; margin: 4px 8px; }

QPushButton { background: @button; color: @text; border: 1px solid @line; border-radius: 5px; padding: 5px 14px; outline: none; }
QPushButton:hover { background: @hover; }
QPushButton:pressed { background: @pressed; }
QPushButton:focus { border: 2px solid @accent; padding: 4px 13px; }
QPushButton:disabled { background: @window; color: @faint; border-color: @faint_line; }
QPushButton[role="primary"] { background: @accent; color: @accent_text; border-color: @accent; }
QPushButton[role="primary"]:hover { background: @accent_hover; }
QPushButton[role="primary"]:focus { border: 2px solid @text; }
QPushButton[role="primary"]:disabled { background: @window; color: @faint; border-color: @faint_line; }

QPushButton[role="go"], QPushButton[role="pause"], QPushButton[role="stop"], QPushButton[role="live"],
QPushButton[role="step"] { border-width: 2px; border-radius: 7px; padding: 4px 8px; }
QPushButton[role="go"] { background: #14813f; color: #ffffff; border-color: #14813f; }
QPushButton[role="go"]:hover { background: #189a4c; }
QPushButton[role="pause"] { background: #f5b800; color: #1a1400; border-color: #f5b800; }
QPushButton[role="pause"]:hover { background: #ffca2e; }
QPushButton[role="stop"] { background: #b3261e; color: #ffffff; border-color: #b3261e; }
QPushButton[role="stop"]:hover { background: #cc3128; }
QPushButton[role="live"] { background: #1d5fbf; color: #ffffff; border-color: #1d5fbf; }
QPushButton[role="live"]:hover { background: #2a72da; }
QPushButton[role="step"] { background: @button; color: @text; border-color: @strong_line; }
QPushButton[role="step"]:hover { background: @hover; }
QPushButton[role="go"]:focus, QPushButton[role="stop"]:focus, QPushButton[role="live"]:focus,
QPushButton[role="pause"]:focus, QPushButton[role="step"]:focus { border: 3px solid @focus; padding: 3px 7px; }
QPushButton[role="go"]:pressed, QPushButton[role="stop"]:pressed, QPushButton[role="live"]:pressed,
QPushButton[role="pause"]:pressed { background: #20262e; color: #ffffff; }
QPushButton[role="go"]:disabled, QPushButton[role="stop"]:disabled, QPushButton[role="live"]:disabled,
QPushButton[role="pause"]:disabled, QPushButton[role="step"]:disabled {
  background: @window; color: @faint; border-color: @faint_line; }

QToolButton { border: 1px solid transparent; border-radius: 4px; padding: 2px; }
QToolButton:hover { background: @hover; border-color: @line; }
QToolButton[role="switch"] { padding: 2px 10px; border-color: @line; }

QLineEdit, QPlainTextEdit, QListView, QTableView {
  background: @base; color: @text; border: 1px solid @line; border-radius: 4px;
  selection-background-color: @accent; selection-color: @accent_text; }
QLineEdit { padding: 3px 6px; }
QLineEdit:focus, QPlainTextEdit:focus, QListView:focus, QTableView:focus { border: 2px solid @accent; }
QLineEdit:focus { padding: 2px 5px; }
QLineEdit:read-only, QLineEdit:disabled, QListView:disabled { background: @panel; }
QLineEdit:disabled { color: @muted; }
QListView, QTableView { outline: 0; }
QTableView { alternate-background-color: @panel; }
QHeaderView { background: @bar; }
QHeaderView::section { background: @bar; color: @muted; border: none; border-bottom: 1px solid @line; padding: 4px 5px; }
QListView::item { border: none; padding: 1px 5px; }
QListView::item:hover { background: @hover; }
QListView::item:selected { background: @accent; color: @accent_text; }
QListView::item:selected:disabled { background: @line; color: @text; }
QLabel[role="status"] { background: @panel; border-radius: 6px; border: 1px solid @line; padding: 4px 14px; }
QLineEdit[role="hint"] { background: transparent; border: none; padding: 0px; color: @muted; }
QLineEdit[role="notice"], QLabel[role="notice"] { background: @notice; color: @notice_text; border: 1px solid @notice_line; padding: 2px 8px; }
QLabel[role="notice"] { border-radius: 4px; }

QGroupBox { background: @panel; border: 1px solid @line; border-radius: 6px; margin: 0; padding-top: 17px; }
QGroupBox::title { subcontrol-origin: border; subcontrol-position: top left; left: 10px; top: 3px; color: @muted; }
QGroupBox[role="air"] { background: #0d1218; border: 1px solid #2b3440; }
QGroupBox[role="air"]::title { left: 14px; top: 6px; color: #93a1b1; }
QGroupBox[role="air"] QLabel { color: #f4f7fa; }
QGroupBox[role="choice"] { border: 2px solid @accent; }
QGroupBox[role="choice"]::title { color: @accent; }

QLabel[role="heading"] { color: @muted; }
QLabel[role="note"] { color: @muted; }
QLabel[role="warning"] { background: #b3261e; color: #ffffff; border-radius: 6px; padding: 8px 14px; }
QLabel[role="trouble"] { background: #b3261e; color: #ffffff; padding: 8px 16px; }

QFrame[role="splash"] { background: #0d1218; border: 1px solid #36414e; border-radius: 0px; }
QFrame[role="splash"] QLabel { color: #f4f7fa; }
QFrame[role="splash"] QLabel[role="note"] { color: #93a1b1; }
QFrame[role="rule"] { background: #14813f; border: none; }

QScrollBar:vertical { background: transparent; width: 12px; margin: 0; }
QScrollBar:horizontal { background: transparent; height: 12px; margin: 0; }
QScrollBar::handle { background: @scroll; border-radius: 4px; margin: 2px; }
QScrollBar::handle:hover { background: @muted; }
QScrollBar::handle:vertical { min-height: 28px; }
QScrollBar::handle:horizontal { min-width: 28px; }
QScrollBar::add-line, QScrollBar::sub-line { width: 0; height: 0; }
QScrollBar::add-page, QScrollBar::sub-page { background: transparent; }
)";

}  // namespace quixair::desktop
