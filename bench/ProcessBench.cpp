// SPDX-License-Identifier: GPL-3.0-or-later
// Measures the way of one photo of 24 megapixels from file to file, in whole processes, against the programs of the
// JPEG library on pictures of the same sizes, and many photos at once: process_bench LUMORA-RENDER FOLDER
//
// The one photo on one core, in processor time, of each process and those that it starts. FOLDER takes the pictures.
// Beside them, where they are installed, two curves by GraphicsMagick and one by libvips on the same photo.

#include "bench/Measure.h"
#include "bench/Photo.h"

#include <QFile>
#include <QImage>
#include <QStandardPaths>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <string>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace {

constexpr int rounds = 5;

struct Cost {
    double milliseconds = 1e9;
    double mebibytes = 0; ///< the most that the process itself has held
};

double processorMilliseconds(const rusage& usage)
{
    const auto milliseconds = [](const timeval& time) {
        return double(time.tv_sec) * 1e3 + double(time.tv_usec) / 1e3;
    };
    return milliseconds(usage.ru_utime) + milliseconds(usage.ru_stime);
}

/// What a program takes that must succeed. What it says is thrown away.
Cost costOf(const std::vector<std::string>& command)
{
    const pid_t process = fork();
    if (process == 0) {
        const int nowhere = open("/dev/null", O_WRONLY);
        dup2(nowhere, STDOUT_FILENO);
        std::vector<char*> arguments;
        for (const std::string& argument : command)
            arguments.push_back(const_cast<char*>(argument.c_str())); // which the call leaves as they are
        arguments.push_back(nullptr);
        execvp(arguments[0], arguments.data());
        _exit(127);
    }
    int status = 0;
    rusage before = {}, usage = {}, after = {};
    getrusage(RUSAGE_CHILDREN, &before);
    if (process < 0 || wait4(process, &status, 0, &usage) != process || status != 0) {
        std::fprintf(stderr, "process_bench: %s fails\n", command[0].c_str());
        std::exit(1);
    }
    while (wait(nullptr) > 0) { } // those that it has left behind
    getrusage(RUSAGE_CHILDREN, &after);
    return {processorMilliseconds(after) - processorMilliseconds(before), double(usage.ru_maxrss) / 1024};
}

/// The rounds of both stand side by side, so that a busy moment of the machine meets both.
void compare(const std::string& program, const std::string& folder, const std::string& look)
{
    const std::string photo = folder + "/photo.jpg", output = folder + "/output.jpg";
    const std::string decoded = folder + "/photo.ppm", rendered = folder + "/output.ppm";
    Cost whole;
    double decoding = 1e9, encoding = 1e9;
    for (int i = 0; i < rounds; i++) {
        const Cost cost = costOf({program, "--look", look, "--replace", "--output", output, photo});
        whole = {std::min(whole.milliseconds, cost.milliseconds), std::max(whole.mebibytes, cost.mebibytes)};
        costOf({"djpeg", "-outfile", rendered, output});
        decoding = std::min(decoding, costOf({"djpeg", "-outfile", decoded, photo}).milliseconds);
        encoding = std::min(encoding, costOf({"cjpeg", "-quality", "75", "-outfile", output, rendered}).milliseconds);
    }
    std::printf("%-10s %6.0f ms, %5.2f times djpeg (%.0f ms) and cjpeg (%.0f ms), at most %.0f MiB\n", look.c_str(),
        whole.milliseconds, whole.milliseconds / (decoding + encoding), decoding, encoding, whole.mebibytes);
    std::fflush(stdout);
}

/// A row for a program, where it is installed.
void measureOther(const char* name, const std::vector<std::string>& command)
{
    if (QStandardPaths::findExecutable(QString::fromStdString(command[0])).isEmpty())
        return;
    Cost whole;
    for (int i = 0; i < rounds; i++) {
        const Cost cost = costOf(command);
        whole = {std::min(whole.milliseconds, cost.milliseconds), std::max(whole.mebibytes, cost.mebibytes)};
    }
    std::printf("%-10s %6.0f ms, at most %.0f MiB\n", name, whole.milliseconds, whole.mebibytes);
    std::fflush(stdout);
}

void measureOthers(const std::string& folder)
{
    setenv("OMP_NUM_THREADS", "1", 1); // GraphicsMagick's threads
    setenv("VIPS_CONCURRENCY", "1", 1);
    const std::string photo = folder + "/photo.jpg", output = folder + "/output.jpg";
    measureOther("gm", {"gm", "convert", photo, "-modulate", "100,120", "-gamma", "1.1", "-quality", "75", output});
    measureOther("vips", {"vips", "gamma", photo, output + "[Q=75]", "--exponent", "1.1"});
}

/// A hundred photos of 2 megapixels under two looks, on all cores.
void measureJobs(const std::string& program, const std::string& folder)
{
    constexpr int count = 100;
    namespace fs = std::filesystem;
    fs::create_directory(folder + "/many");
    std::vector<std::string> photos;
    for (int i = 0; i < count; i++) {
        photos.push_back(folder + "/many/" + std::to_string(i) + ".jpg");
        fs::copy_file(folder + "/small.jpg", photos.back(), fs::copy_options::overwrite_existing);
    }
    double one = 0;
    for (const std::string jobs : {"1", "2"}) {
        const std::string output = folder + "/done" + jobs;
        fs::create_directory(output);
        std::vector<std::string> command = {
            program, "--look", "Helga", "--look", "Mono", "--replace", "--output", output, "--jobs", jobs};
        command.insert(command.end(), photos.begin(), photos.end());
        Cost cost;
        const double rate = count / secondsOf([&] { cost = costOf(command); });
        one = one > 0 ? one : rate;
        std::printf("--jobs %s   %5.1f photos a second, %.2f times one job, %.0f ms of a core each\n", jobs.c_str(),
            rate, rate / one, cost.milliseconds / count);
        std::fflush(stdout);
    }
}

bool writePhoto(const std::string& path, int width, int height)
{
    const Picture photo = benchPhoto(width, height);
    return QImage(photo.pixels.data(), width, height, qsizetype(width) * 4, QImage::Format_RGBX8888)
        .save(QFile::decodeName(path.c_str()), "jpeg", 75);
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 3) {
        std::fprintf(stderr, "process_bench: give lumora-render and a folder\n");
        return 2;
    }
    const std::string folder = argv[2];
    if (!writePhoto(folder + "/photo.jpg", 6000, 4000) || !writePhoto(folder + "/small.jpg", 1732, 1155)) {
        std::fprintf(stderr, "process_bench: cannot write into %s\n", folder.c_str());
        return 1;
    }
    prctl(PR_SET_CHILD_SUBREAPER, 1); // whom a program leaves behind becomes a child of this one
    measureJobs(argv[1], folder);
    stayOnOneCore();
    for (const char* look : {"Original", "Mono", "Helga"})
        compare(argv[1], folder, look);
    measureOthers(folder);
}
