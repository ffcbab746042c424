// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/preview/FramedOriginal.h"

#include "render/Export.h"
#include "render/RenderPipeline.h"

const QImage& FramedOriginal::of(const QImage& source, int cropFilter, int borderFilter, int outputSize)
{
    if (m_source == source.cacheKey() && m_cropFilter == cropFilter && m_borderFilter == borderFilter
        && m_outputSize == outputSize)
        return m_picture;
    m_source = source.cacheKey();
    m_cropFilter = cropFilter;
    m_borderFilter = borderFilter;
    m_outputSize = outputSize;
    m_picture = {}; // may be as large as the photo
    m_picture = renderPhoto(source, {.cropFilter = cropFilter, .borderFilter = borderFilter});
    if (!m_picture.isNull() && outputSize > -1)
        scaleForExport(m_picture, outputSize);
    if (m_picture.isNull())
        m_picture = source;
    return m_picture;
}
