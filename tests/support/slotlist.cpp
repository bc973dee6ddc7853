// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/support/slotlist.h"

#include <QMetaMethod>

using namespace Qt::StringLiterals;

QStringList ownSlots(const QMetaObject &metaObject)
{
    QStringList slots_;
    for (int i = metaObject.methodOffset(); i < metaObject.methodCount(); ++i) {
        const QMetaMethod method = metaObject.method(i);
        if (method.methodType() != QMetaMethod::Slot)
            continue;
        QStringList parameters;
        const QList<QByteArray> names = method.parameterNames();
        for (int p = 0; p < method.parameterCount(); ++p)
            parameters.append(QString::fromLatin1(method.parameterTypeName(p)) + u' ' +
                              QString::fromLatin1(names.value(p)));
        slots_.append(QString::fromLatin1(method.name()) + u'(' + parameters.join(u", "_s) + u')');
    }
    return slots_;
}
