// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QIODevice>
#include <QImage>
#include <optional>

/// The one colour that is transparent in a PNG of red, green and blue with 16 bits each. Qt 6.4 decodes such a file
/// wrong: it makes rows of four channels, fills three quarters of each with pixels of three, and leaves the rest unset.
/// Without the chunk that names the colour it decodes it right.
struct PngColourKey {
    quint16 red, green, blue;
    qint64 chunk; ///< where its chunk begins in the file
};

/// The key of such a file, none for any other. Begins at the file's beginning and leaves it anywhere.
std::optional<PngColourKey> findPngColourKey(QIODevice& file);

/// What a file with a key is decoded from: its bytes without the chunk, once from the beginning to the end. Meanwhile
/// nobody else moves the file.
class PngWithoutKey : public QIODevice {
public:
    PngWithoutKey(QIODevice& file, const PngColourKey& key);

    bool isSequential() const override { return true; }

protected:
    qint64 readData(char* data, qint64 size) override;
    qint64 writeData(const char*, qint64) override { return -1; }

private:
    QIODevice& m_file;
    qint64 m_chunk;
};

/// Makes the pixels of the key's colour transparent. False where the picture is not one of 16 bits a channel without
/// alpha, which was not decoded from that file.
bool applyColourKey(QImage& image, const PngColourKey& key);
