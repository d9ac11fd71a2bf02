#include "draw/drawsecret.h"

#include <QRandomGenerator>
#include <QtEndian>

#include <openssl/evp.h>

namespace draw {

QByteArray sha256(const QByteArray &bytes) {
    // OpenSSL uses the processor's SHA instructions; the verifier hashes every pool of an
    // evening, hundreds of megabytes for a large roster.
    QByteArray digest(32, Qt::Uninitialized);
    unsigned int size = 0;
    EVP_Digest(bytes.constData(), size_t(bytes.size()),
               reinterpret_cast<unsigned char *>(digest.data()), &size, EVP_sha256(), nullptr);
    return digest;
}

QString sha256Hex(const QByteArray &bytes) {
    return QString::fromLatin1(sha256(bytes).toHex());
}

DrawSecret::DrawSecret() : m_secret(kSize, Qt::Uninitialized) {
    QRandomGenerator::system()->fillRange(reinterpret_cast<quint32 *>(m_secret.data()),
                                          kSize / int(sizeof(quint32)));
}

QString DrawSecret::fingerprint() const {
    const QString id = sessionId().toUpper();
    return id.left(4) + QLatin1Char(' ') + id.mid(4, 4) + QLatin1Char(' ') + id.mid(8, 4);
}

quint64 DrawSecret::pressSeed(const QByteArray &secret, quint64 number) {
    QByteArray input = secret;
    char counter[8];
    qToBigEndian(number, counter);
    input.append(counter, 8);
    return qFromBigEndian<quint64>(sha256(input).constData());
}

}  // namespace draw
