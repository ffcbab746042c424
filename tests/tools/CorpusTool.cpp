// SPDX-License-Identifier: GPL-3.0-or-later
// Opens every file under a folder the way the application does, each in a process of its own, and tells how it went:
//
//     corpus_tool [--pixels] FOLDER [SECONDS] [MEBIBYTES]
//
// With --pixels it lists the files that opened, too, each with a digest of its pixels.
//
// SECONDS (10) and MEBIBYTES (2048) limit each file. The exit status is 0 when no file crashed or passed a limit.

#include "photo/EscapedText.h"
#include "photo/PhotoReader.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <map>
#include <poll.h>
#include <string>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace {

struct Limits {
    int seconds = 10;
    int mebibytes = 2048;
    bool pixels = false; ///< tell a digest of them, too
};

struct Outcome {
    std::string file, kind, reason;
    double milliseconds = 0;
    long mebibytes = 0;
};

/// The most that this process, or one that it waited for, has taken.
long peakMebibytes()
{
    rusage own = {}, reader = {};
    getrusage(RUSAGE_SELF, &own);
    getrusage(RUSAGE_CHILDREN, &reader);
    return std::max(own.ru_maxrss, reader.ru_maxrss) / 1024;
}

std::string kindOf(PhotoReader::End end, bool isPhoto)
{
    switch (end) {
    case PhotoReader::End::Answered:
        return isPhoto ? "opened" : "refused";
    case PhotoReader::End::TookTooLong:
        return "timed out";
    case PhotoReader::End::TookTooMuchMemory:
        return "over memory";
    default:
        return "crashed";
    }
}

std::string digestOf(const QImage& image)
{
    QCryptographicHash digest(QCryptographicHash::Md5);
    for (int y = 0; y < image.height(); y++)
        digest.addData(QByteArrayView(image.constScanLine(y), qsizetype(image.width()) * 4));
    return digest.result().toHex().toStdString();
}

[[noreturn]] void openAndTell(const std::string& file, int pipe, [[maybe_unused]] const Limits& limits)
{
#ifndef LUMORA_SANITIZE
    // Well beyond the limit, so that passing it is seen and the machine is safe.
    const rlim_t most = rlim_t(limits.mebibytes) * 4 << 20;
    const rlimit space = {most, most};
    setrlimit(RLIMIT_AS, &space);
#endif
    LoadedPhoto photo;
    std::string kind;
    {
        PhotoReader reader;
        reader.begin(QByteArray::fromStdString(file));
        photo = reader.take();
        kind = kindOf(reader.end(), !photo.image.isNull());
    }
    while (wait(nullptr) > 0) // for what the readers took
        ;
    const std::string answer = photo.image.isNull() ? photo.reason.toStdString()
        : limits.pixels                             ? digestOf(photo.image)
                                                    : "";
    const std::string told = kind + '\n' + std::to_string(peakMebibytes()) + '\n' + answer;
    _exit(write(pipe, told.data(), told.size()) == ssize_t(told.size()) ? 0 : 1);
}

/// Takes the part of `text` up to the next line's end.
std::string takeLine(std::string& text)
{
    const std::size_t end = std::min(text.find('\n'), text.size());
    const std::string line = text.substr(0, end);
    text.erase(0, end + 1);
    return line;
}

Outcome open(const std::string& file, const Limits& limits)
{
    Outcome outcome;
    outcome.file = file;
    int ends[2];
    if (pipe(ends) != 0)
        std::abort();
    const auto start = std::chrono::steady_clock::now();
    const pid_t child = fork();
    if (child == 0)
        openAndTell(file, ends[1], limits);
    close(ends[1]);
    // The pipe ends with an answer or with the process.
    pollfd waited = {ends[0], POLLIN, 0};
    const bool inTime = poll(&waited, 1, limits.seconds * 1000) > 0;
    if (!inTime)
        kill(child, SIGKILL);
    char text[4096];
    const ssize_t length = read(ends[0], text, sizeof text);
    close(ends[0]);
    int status = 0;
    waitpid(child, &status, 0);
    const std::chrono::duration<double, std::milli> elapsed = std::chrono::steady_clock::now() - start;
    outcome.milliseconds = elapsed.count();

    std::string told(text, length > 0 ? std::size_t(length) : 0);
    if (!inTime)
        outcome.kind = "timed out";
    else if (!WIFEXITED(status) || WEXITSTATUS(status) != 0 || told.empty())
        outcome.kind = "crashed";
    else {
        outcome.kind = takeLine(told);
        outcome.mebibytes = std::atol(takeLine(told).c_str());
        outcome.reason = told;
        if (outcome.mebibytes > limits.mebibytes)
            outcome.kind = "over memory";
    }
    return outcome;
}

void print(const Outcome& outcome)
{
    std::printf("%-12s %8.0f ms %6ld MiB  %s%s%s\n", outcome.kind.c_str(), outcome.milliseconds, outcome.mebibytes,
        escaped(QByteArray::fromStdString(outcome.file)).constData(), outcome.reason.empty() ? "" : ": ",
        outcome.reason.c_str());
}

} // namespace

int main(int argc, char** argv)
{
    const char* program = argv[0];
    Limits limits;
    limits.pixels = argc > 1 && std::strcmp(argv[1], "--pixels") == 0;
    argc -= limits.pixels;
    argv += limits.pixels;
    if (argc < 2) {
        std::fprintf(stderr, "usage: %s [--pixels] FOLDER [SECONDS] [MEBIBYTES]\n", program);
        return 2;
    }
    const QCoreApplication application(argc, argv);
    PhotoReader::setProgram(READER);
    if (argc > 2)
        limits.seconds = std::atoi(argv[2]);
    if (argc > 3)
        limits.mebibytes = std::atoi(argv[3]);

    std::vector<std::string> files;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(argv[1]))
        if (entry.is_regular_file())
            files.push_back(entry.path().native());
    std::sort(files.begin(), files.end());
    std::vector<Outcome> outcomes;
    std::map<std::string, int> counts;
    for (const std::string& file : files) {
        outcomes.push_back(open(file, limits));
        counts[outcomes.back().kind]++;
        if (limits.pixels || outcomes.back().kind != "opened")
            print(outcomes.back());
    }

    std::stable_sort(outcomes.begin(), outcomes.end(),
        [](const Outcome& a, const Outcome& b) { return a.milliseconds > b.milliseconds; });
    std::printf("\nThe slowest:\n");
    for (std::size_t i = 0; i < std::min<std::size_t>(outcomes.size(), 5); i++)
        print(outcomes[i]);
    std::printf("\n%zu files: %d opened, %d refused, %d crashed, %d timed out, %d over memory\n", files.size(),
        counts["opened"], counts["refused"], counts["crashed"], counts["timed out"], counts["over memory"]);
    return files.empty() || counts["crashed"] + counts["timed out"] + counts["over memory"] > 0 ? 1 : 0;
}
