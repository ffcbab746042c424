// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "image/CharImage.h"

#include <QByteArray>
#include <memory>

/// Two places of the document where a caller may leave something. Nothing in the program reads them.
class DocumentSlots {
public:
    const QByteArray& getPicData() const { return m_picData; }
    void setPicData(const QByteArray& data) { m_picData = data; }

    /// Null before the first.
    lumora::CharImage* getLocalChar() const { return m_localImage.get(); }
    /// Takes the image over, which may be null, and deletes the one before.
    void setLocalChar(lumora::CharImage* image)
    {
        if (image != m_localImage.get())
            m_localImage.reset(image);
    }

private:
    QByteArray m_picData;
    std::unique_ptr<lumora::CharImage> m_localImage;
};
