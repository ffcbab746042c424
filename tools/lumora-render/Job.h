// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/GrowArray.h"
#include "image/CharImage.h"
#include "image/FilterNumber.h"
#include "photo/PhotoSaver.h"

#include <QByteArray>
#include <QString>
#include <optional>
#include <set>
#include <sys/types.h>

/// What is made of every photo.
struct Order {
    lumora::GrowArray<int> looks; ///< filter numbers in the order of application
    int strength = lumora::CharImage::wholeStrength; ///< of the looks together, in per cent
    int crop = lumora::Filter::original, border = lumora::Filter::original; ///< filter numbers
    int size = -1; ///< the longer side in pixels; -1: the picture's own
    std::optional<unsigned> seed; ///< of the variation; without one looks use their fixed settings
    Kept kept = Kept::Everything;
    JpegQuality quality = JpegQuality::Standard;
    bool lossless = false; ///< a PNG in place of a JPEG
    bool mayReplace = false; ///< a file that stands where the output goes
};

/// One photo: any bytes, "-" stands for the standard input and the standard output.
struct Task {
    QByteArray source, output;
    QString refusal; ///< why it is not even begun; empty for most
};

/// A file, whatever its names.
using FileNumber = std::pair<dev_t, ino_t>;
/// Of the file of that path, through links; none where there is none.
std::optional<FileNumber> fileNumber(const QByteArray& path);
using FileNumbers = std::set<FileNumber>;

/// How a photo went.
struct Outcome {
    QString reason; ///< why there is no output, for people; empty where there is one
    int width = 0, height = 0; ///< of the output's picture
    qint64 bytes = 0; ///< of the output
    QString warning; ///< what is wrong with the photo that was rendered all the same; mostly empty
};

/// Why nothing may be written there; empty where it may. The photos themselves are never replaced.
QString outputRefusal(const QByteArray& output, const FileNumbers& photos, bool mayReplace);

/// Reads, renders and writes one photo in this process. `standardOutput` is where "-" leads. From the moment on when
/// the output is written, interrupts wait, also after this.
Outcome renderOne(const Task& task, const Order& order, const FileNumbers& photos, int standardOutput);
