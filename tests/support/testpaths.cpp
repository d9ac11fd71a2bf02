#include "support/testpaths.h"

namespace testpaths {

QString factoryDir() {
    return QStringLiteral(QUELLIO_FACTORY_DIR "/");
}

QString rosterFixture(const QString &name) {
    return QStringLiteral(QUELLIO_SOURCE_DIR "/tests/roster/fixtures/") + name;
}

}  // namespace testpaths
