#pragma once

#include <QString>

// The management password: one row of UPassWord (ID 1) holding a switch and a digest; the
// password itself is never stored.
namespace password {

// True when the row exists and its switch is 1.
bool isPassWordOn();
// True when some row holds the digest of the trimmed text.
bool matches(const QString &typed);
// Stores the switch; a non-blank password also replaces the digest, a blank one keeps the old.
void save(bool enabled, const QString &newPassword);

}  // namespace password
