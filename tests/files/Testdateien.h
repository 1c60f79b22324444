#pragma once

#include "Testbasis.h"

#include <QFile>

inline void ablegen(const QString& name, const QByteArray& bytes) {
    QFile ziel(name);
    QVERIFY(ziel.open(QIODevice::WriteOnly));
    ziel.write(bytes);
}

/// The whole file, nothing when it does not open.
inline QByteArray bytesVon(const QString& name) {
    QFile quelle(name);
    return quelle.open(QIODevice::ReadOnly) ? quelle.readAll() : QByteArray();
}
