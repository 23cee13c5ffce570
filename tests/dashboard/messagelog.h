// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef MESSAGELOG_H
#define MESSAGELOG_H

#include <QDebug>
#include <QStringList>

/** Keeps the debug messages for as long as it lives; any other message goes its usual way. */
class MessageLog
{
public:
    MessageLog()
    {
        current = this;
        previous = qInstallMessageHandler(&MessageLog::handle);
    }
    ~MessageLog()
    {
        qInstallMessageHandler(previous);
        current = nullptr;
    }
    Q_DISABLE_COPY(MessageLog)

    /** The messages since the last call. */
    QStringList take()
    {
        const QStringList taken = messages;
        messages.clear();
        return taken;
    }

    int warnings = 0;

private:
    static void handle(QtMsgType type, const QMessageLogContext &context, const QString &message)
    {
        if (type == QtDebugMsg) {
            current->messages << message;
            return;
        }
        ++current->warnings;
        current->previous(type, context, message);
    }

    static inline MessageLog *current = nullptr;
    QtMessageHandler previous = nullptr;
    QStringList messages;
};

/** How qDebug() names a value. */
template <typename T>
QString debugText(const T &value)
{
    QString text;
    QDebug(&text) << value;
    return text.trimmed();
}

#endif
