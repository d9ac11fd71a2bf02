#pragma once

#include <QString>

// Small file and text helpers shared by every subsystem.

// False for an empty path; otherwise true when path names an existing file (not a folder).
bool fileExists(const QString &path);
// "." + the text after the last ".", or empty when there is no dot. "a.tar.gz" gives ".gz".
QString getExt(const QString &path);
// The last piece of a path, after the last "/" or "\".
QString getFileName(const QString &path);
// Whether a file name is one the program gives a participant's photo: "U<ID>" and an extension.
bool isParticipantPhotoName(const QString &fileName);
// The file a stored path names when the program owns it: a path relative to appPath ("/" or "\")
// that stays inside appPath + folder once "." and ".." are resolved and linked folders followed.
// Empty for an empty or absolute path and for one that leads anywhere else: such files are the
// operator's, never deleted or overwritten.
QString ownedFile(const QString &appPath, const QString &folder, const QString &storedPath);
// Random text over 0-9 and a-z, for new stage object names.
QString makeRandomName(int length);
// The password digest: MD5 of the trimmed text's UTF-8 bytes in lower-case hexadecimal; form 32
// gives all 32 characters, any other form the 16 middle ones (characters 9 to 24).
QString md5(const QString &text, int form);
// Turns "\" into "/" so paths kept by older data work on every platform.
QString normalizeSlashes(QString path);
// Masks a name for the stage: the first `left` and last `right` characters stay and every
// character between them becomes `replacement`. A name too short to mask stays whole.
QString hideName(const QString &text, int left, int right, const QString &replacement);
