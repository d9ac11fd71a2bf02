#pragma once

#include <QColor>
#include <QString>

class QTreeWidget;
class QWidget;

// The console's colours and the one style sheet every screen shares.
namespace style {

inline const QColor kTint(255, 235, 236);  // backgrounds and tinted panels
inline const QColor kDeep(128, 23, 25);    // rules, headings, strong text
inline const QColor kSoft(169, 97, 100);   // secondary text
inline const QColor kBright(200, 40, 58);  // banner and primary buttons
inline const QColor kGold(255, 212, 96);

QString styleSheet();
// The look of the program's lists: white rows with a faint stripe, a soft pink selection and
// a tinted header, one row selected at a time.
void styleList(QTreeWidget *list);
// Applies the style sheet to the whole application.
void apply();

}  // namespace style
