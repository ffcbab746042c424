// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QKeyEvent>

/// Tells a key that is held on from one that is pressed anew. The X server repeats a held key as a release and a press
/// of the same moment; on a busy machine the platform does not always see that they belong together, and gives them
/// out as real ones.
class KeyRepeat {
public:
    void noteRelease(const QKeyEvent& release)
    {
        m_key = release.key();
        m_moment = release.timestamp();
    }
    bool isRepeat(const QKeyEvent& press) const
    {
        return press.isAutoRepeat() || (press.key() == m_key && press.timestamp() == m_moment && m_moment != 0);
    }

private:
    int m_key = 0; ///< that was released last
    quint64 m_moment = 0; ///< by the desktop's clock; 0: not known
};
