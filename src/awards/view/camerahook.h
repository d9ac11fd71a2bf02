#pragma once

#include <QString>

#include <functional>

class QWidget;

// The camera of the award editors. The roster's camera dialog registers itself here; it takes a
// photo for the screen named by caller and returns the file it saved (Photos/camertemp.jpg), or
// an empty text when nothing was taken. With nothing registered the editors hide their camera
// button.
namespace awardcamera {

using Shot = std::function<QString(QWidget *parent, const QString &caller)>;

void setShot(Shot shot);
const Shot &shot();

}  // namespace awardcamera
