#pragma once

#include <QString>

// Where the build put the factory program folder and where the test fixtures live. Kept out of
// the compiler's command line so that every other test object is the same in every checkout.
namespace testpaths {

// The factory program folder of this build, with a trailing slash.
QString factoryDir();
// A file under tests/roster/fixtures.
QString rosterFixture(const QString &name);

}  // namespace testpaths
