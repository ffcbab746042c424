// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QDBusMessage>
#include <QObject>
#include <functional>

/// The colour profile that colord, the service of desktops for such, has for a screen. It is asked over D-Bus; the
/// window does not wait for it.
class ColordProfile : public QObject {
    Q_OBJECT

public:
    /// Begins to look for that of a screen, by the name of its connector as "DP-1", and tells each change from then on.
    void lookFor(const QString& connector);
    /// What was begun tells nothing any more.
    void stop();

signals:
    /// The ICC profile; empty: none, or no colord.
    void found(const QByteArray& icc);

private slots:
    void ask();

private:
    void ask(const QDBusMessage& question, const std::function<void(const QVariant&)>& next);

    QString m_connector;
    int m_search = 0; ///< counts: an answer to a former one is of no use
    bool m_listens = false;
};
