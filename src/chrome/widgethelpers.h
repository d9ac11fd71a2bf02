#pragma once

#include <QString>

class QComboBox;
class QLineEdit;
class QWidget;

// Helpers for the controls of every screen.

// Selects the item whose trimmed text equals text; with no match item 0 stays selected.
void selectCombo(QComboBox *combo, const QString &text);
// Selects the whole text, for numeric fields on focus.
void selectAllText(QLineEdit *edit);
// Makes a box select its whole text whenever it gains the focus, so typing replaces it.
void selectAllOnFocus(QLineEdit *edit);
// The console: dialogs are centred on it.
void setConsoleWindow(QWidget *console);
QWidget *consoleWindow();
// Centres a dialog on the console while it is shown, else on its parent window, else on the
// screen; never above or left of 0.
void centerForm(QWidget *form);
// Fills combo with the installed fonts that can show Simplified Chinese and selects item 0.
void listChineseFonts(QComboBox *combo);
// Closes the open windows from the last to the first. When none is left, or with force, the
// store is closed and the single-instance lock released.
void exitProgram(bool force);
