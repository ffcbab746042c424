// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/GrowArray.h"
#include "image/CharImage.h"
#include "image/FilterNumber.h"

#include <QImage>
#include <QString>
#include <functional>
#include <memory>

/// What one render applies to its source.
struct RenderSettings {
    int filter = -1; ///< a filter number, or -1 for every entry of `filterIDs` in order
    const lumora::GrowArray<int>* filterIDs = nullptr; ///< the applied list, read when `filter` is -1
    int cropFilter = lumora::Filter::original; ///< whose crop aspect is taken
    int borderFilter = lumora::Filter::original; ///< whose margins and border are drawn
    int strength = lumora::CharImage::wholeStrength; ///< of the looks together, per cent; not of a thumbnail's
    bool asThumbnail = false; ///< square, without the border, though fitted inside its margins
};

/// Told before each step of a render with the step's name for people ("Fit", a look's name, "Border").
using RenderProgress = std::function<void(const char* step)>;

/// A step for people, in the language of this process. Names of looks are names and stay.
QString shownStep(const char* step);

/// Renders a photo: crops and fits it, applies the filters and finishes the border. The one road of previews,
/// thumbnails and saved files. `source` is not changed; the picture is in its colour space. A null source gives a null
/// picture. A picture that the free memory cannot hold, as a square is that is cut from a long strip, is a null picture
/// too, and has a `reason` for people; nothing is allocated for it.
QImage renderPhoto(const QImage& source, const RenderSettings& settings, const RenderProgress& progress = {},
    QString* reason = nullptr);

/// A part of the mix of two pictures of the same size, of which `after` has `strength` per cent: as renderPhoto mixes,
/// but from finished pictures, borders and all. Where a border is painted over the photo itself, as round corners are,
/// a byte may be one off. Nothing but the part is copied of either; it lies in both. Format_RGBX8888.
QImage mixedPart(const QImage& before, const QImage& after, int strength, const QRect& part);

/// A render whose strength is still open: the photo before and after its looks, which takes twice the memory of a
/// render. The looks are not applied again for another strength.
class RenderedLooks {
public:
    /// Crops, fits and applies the looks as renderPhoto does, which `settings` tells; their strength and `asThumbnail`
    /// are not read. Null without a source, or without the memory for both pictures.
    static std::unique_ptr<RenderedLooks> of(
        const QImage& source, const RenderSettings& settings, const RenderProgress& progress = {});
    ~RenderedLooks();

    /// The picture that renderPhoto gives for this strength; null where there is no memory for it.
    QImage withStrength(int strength) const;

private:
    struct Parts;
    explicit RenderedLooks(std::unique_ptr<Parts> parts);
    std::unique_ptr<Parts> m;
};
