// Cost of the pupil record: encoding and decoding in memory, and a save (temporary file, flush to
// disk, rename) and a load of a real file in the system's temporary folder, or in the folder
// named by NUMBROOK_BENCH_DIR.
#include "shell/record/RecordCodec.h"
#include "shell/record/RecordFile.h"

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <filesystem>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;

// A pupil well into the year: a name and most best times set.
nb::PupilProgress busyPupil()
{
    nb::PupilProgress p;
    const auto &fields = nb::PupilProgress::recordFields();
    p.PupilName = nb::Value::text("Zoë Ångström");
    for (std::size_t i = 1; i < fields.size(); ++i)
        p.*fields[i].member =
            i % 5 == 0 ? nb::Value::int16(std::int16_t(i)) : nb::Value::real(20.0 + double(i) / 4);
    return p;
}

struct Folder
{
    Folder()
        : path(fs::path(std::getenv("NUMBROOK_BENCH_DIR") ? std::getenv("NUMBROOK_BENCH_DIR")
                                                          : fs::temp_directory_path().string()) /
               ("numbrook-bench-" + std::to_string(::getpid())))
    {
        fs::create_directories(path);
    }
    ~Folder() { fs::remove_all(path); }
    fs::path path;
};

void BM_Encode(benchmark::State &state)
{
    const nb::PupilProgress p = busyPupil();
    for (auto _ : state)
        benchmark::DoNotOptimize(nb::record::encode(p));
}
BENCHMARK(BM_Encode);

void BM_Decode(benchmark::State &state)
{
    const std::string bytes = nb::record::encode(busyPupil());
    for (auto _ : state)
        benchmark::DoNotOptimize(nb::record::decode(bytes));
    state.SetBytesProcessed(state.iterations() * std::int64_t(bytes.size()));
}
BENCHMARK(BM_Decode);

void BM_SaveFile(benchmark::State &state)
{
    Folder folder;
    const nb::PupilProgress p = busyPupil();
    const fs::path file = folder.path / "zoe.DAT";
    for (auto _ : state) {
        const nb::record::WriteOutcome out = nb::record::writeRecordFile(
            file, nb::record::encode(p), nb::record::WriteMode::Replace);
        if (!out.saved())
            state.SkipWithError("the record could not be saved");
    }
}
BENCHMARK(BM_SaveFile)->Unit(benchmark::kMicrosecond);

void BM_LoadFile(benchmark::State &state)
{
    Folder folder;
    const fs::path file = folder.path / "zoe.DAT";
    nb::record::writeRecordFile(file, nb::record::encode(busyPupil()),
                                nb::record::WriteMode::Replace);
    nb::PupilProgress p;
    for (auto _ : state) {
        const nb::record::ReadOutcome r = nb::record::readRecordFile(file);
        if (!r.values)
            state.SkipWithError(r.problem.c_str());
        else
            nb::record::store(*r.values, p);
    }
}
BENCHMARK(BM_LoadFile)->Unit(benchmark::kMicrosecond);

void BM_SaveThenLoad(benchmark::State &state)
{
    Folder folder;
    nb::PupilProgress p = busyPupil();
    const fs::path file = folder.path / "zoe.DAT";
    for (auto _ : state) {
        nb::record::writeRecordFile(file, nb::record::encode(p), nb::record::WriteMode::Replace);
        const nb::record::ReadOutcome r = nb::record::readRecordFile(file);
        nb::record::store(*r.values, p);
    }
}
BENCHMARK(BM_SaveThenLoad)->Unit(benchmark::kMicrosecond);

} // namespace

BENCHMARK_MAIN();
