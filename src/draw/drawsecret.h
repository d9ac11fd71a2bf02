#pragma once

#include <QByteArray>
#include <QString>

// Commit before, reveal after. The secret of one opening of the draw window comes from the
// operating system's random source and stays in memory; every press's seed follows from it and
// the press number. Its fingerprint is shown to the hall before the first press and the secret
// itself is written to the audit log when the window closes, so nobody can have chosen the seeds
// after seeing the fingerprint, and anybody can check each seed afterwards.
namespace draw {

// SHA-256 of the bytes (32 bytes).
QByteArray sha256(const QByteArray &bytes);
QString sha256Hex(const QByteArray &bytes);

class DrawSecret {
public:
    static constexpr int kSize = 32;

    // A fresh secret from the operating system's random source.
    DrawSecret();
    // A known secret: the verifier's, read back from the log.
    explicit DrawSecret(const QByteArray &secret) : m_secret(secret) {}

    QByteArray bytes() const { return m_secret; }
    QString hex() const { return QString::fromLatin1(m_secret.toHex()); }
    // SHA-256 of the secret, in hex: what the log commits to before the first press.
    QString commitment() const { return sha256Hex(m_secret); }
    // The first 12 hex digits of the commitment: the session's name in the log.
    QString sessionId() const { return commitment().left(12); }
    // The session id as the hall sees it: upper case in three groups of four.
    QString fingerprint() const;
    // The seed of press `number` (from 1).
    quint64 pressSeed(quint64 number) const { return pressSeed(m_secret, number); }
    static quint64 pressSeed(const QByteArray &secret, quint64 number);

private:
    QByteArray m_secret;
};

}  // namespace draw
