// Cold start of `nutrika-demo --preview calculator --screenshot`, with every host option off and then on,
// against a minimal Qt Quick window that does the same (the floor), measured in the same run: wall time
// and peak resident memory, as medians.
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <QDir>
#include <QTemporaryDir>
#include <QtGlobal>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <vector>

extern char **environ;

namespace {

struct Run
{
    double seconds = 0;
    double peakMiB = 0;
};

bool runOnce(const std::vector<std::string> &argv, Run &run)
{
    std::vector<char *> args;
    for (const std::string &a : argv)
        args.push_back(const_cast<char *>(a.c_str()));
    args.push_back(nullptr);
    const auto start = std::chrono::steady_clock::now();
    pid_t pid = 0;
    if (posix_spawn(&pid, args[0], nullptr, nullptr, args.data(), environ) != 0)
        return false;
    int status = 0;
    rusage usage{};
    if (wait4(pid, &status, 0, &usage) != pid)
        return false;
    run.seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    run.peakMiB = usage.ru_maxrss / 1024.0;
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

} // namespace

int main(int argc, char *argv[])
{
    const int rounds = argc > 1 ? std::max(1, std::atoi(argv[1])) : 7;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QUICK_BACKEND", "software");
    QTemporaryDir dir;
    const std::string demoPng = QDir(dir.path()).filePath(QStringLiteral("demo.png")).toStdString();
    const std::string floorPng = QDir(dir.path()).filePath(QStringLiteral("floor.png")).toStdString();
    const std::vector<std::string> demo{NUTRIKA_DEMO, "--preview", "calculator", "--screenshot", demoPng};
    // The same with every host option on.
    std::vector<std::string> demoOptions = demo;
    demoOptions.insert(demoOptions.end(),
                       {"--carb-unit", "KE", "--net-carbs", "--fpu", "--undo", "--recent-foods"});
    const std::vector<std::string> floor{FLOOR_PROGRAM, floorPng};

    std::vector<double> demoTime, demoMem, optionsTime, optionsMem, floorTime, floorMem;
    Run run;
    // One untimed round of each warms the file cache, so every timed round starts alike.
    if (!runOnce(demo, run) || !runOnce(demoOptions, run) || !runOnce(floor, run)) {
        std::fprintf(stderr, "bench_demo_startup: a program failed to run\n");
        return 1;
    }
    for (int i = 0; i < rounds; ++i) {
        if (!runOnce(floor, run))
            return 1;
        floorTime.push_back(run.seconds);
        floorMem.push_back(run.peakMiB);
        if (!runOnce(demo, run))
            return 1;
        demoTime.push_back(run.seconds);
        demoMem.push_back(run.peakMiB);
        if (!runOnce(demoOptions, run))
            return 1;
        optionsTime.push_back(run.seconds);
        optionsMem.push_back(run.peakMiB);
    }
    const double tf = median(floorTime), mf = median(floorMem);
    std::printf("start-up, median of %d runs (offscreen, software rendering)\n", rounds);
    const auto print = [&](const char *what, const std::vector<double> &time,
                           const std::vector<double> &memory) {
        const double t = median(time), m = median(memory);
        std::printf("  %s\n", what);
        std::printf("    time:   nutrika-demo %.3f s   floor %.3f s   ratio %.2f (goal <= 1.25)\n", t, tf,
                    t / tf);
        std::printf("    memory: nutrika-demo %.1f MiB  floor %.1f MiB  ratio %.2f (goal <= 1.3)\n", m, mf,
                    m / mf);
    };
    print("every host option off", demoTime, demoMem);
    print("every host option on", optionsTime, optionsMem);
    return 0;
}
