#include "core/password.h"

#include "core/helpers.h"
#include "core/store.h"

namespace password {

bool isPassWordOn() {
    return store::scalar(store::mainConn(),
                         QStringLiteral("SELECT isPassWord FROM UPassWord WHERE ID=1"))
               .toInt() == 1;
}

bool matches(const QString &typed) {
    return !store::scalar(store::mainConn(), QStringLiteral("SELECT 1 FROM UPassWord WHERE pwd=?"),
                          {md5(typed.trimmed(), 16)})
                .isNull();
}

void save(bool enabled, const QString &newPassword) {
    const int flag = enabled ? 1 : 0;
    if (enabled && !newPassword.trimmed().isEmpty()) {
        store::exec(store::mainConn(),
                    QStringLiteral("UPDATE UPassWord SET isPassWord=?, pwd=? WHERE ID=1"),
                    {flag, md5(newPassword.trimmed(), 16)});
        return;
    }
    store::exec(store::mainConn(), QStringLiteral("UPDATE UPassWord SET isPassWord=? WHERE ID=1"),
                {flag});
}

}  // namespace password
