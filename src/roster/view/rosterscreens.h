#pragma once

class QWidget;

// The ways into the roster screens, for the console's roster page and the roster manager. Each
// opens its dialog modally over parent; the imports first ask for their file where they need one
// (a blank choice stops). fromConsole: the import was started from the console, which then
// shows the roster manager once the operator confirms the result.
namespace rosterscreens {

void openManager(QWidget *parent);
// True when the dialog was opened (a file was chosen).
bool importExcel(QWidget *parent, bool fromConsole);
bool importText(QWidget *parent, bool fromConsole);
void importPhotos(QWidget *parent, bool fromConsole);
void generateNumbers(QWidget *parent, bool fromConsole);

// Lends the camera dialog to the award editors (they ask through awardcamera::shot()). The
// program calls this once at start-up.
void installCamera();

// The console's five roster links in order: manage, Excel, text, pictures, numbers.
void openRosterAction(int index, QWidget *parent);

}  // namespace rosterscreens
