// SPDX-License-Identifier: GPL-2.0-or-later
// Speed of the engine and of its peers on one picture. "MP/s" counts millions of pixels of the
// picture in a second, "MP/s/core" in a second of processor time; "per_copy" is how many times more
// processor time a rendering takes than one copy. Peers are measured in turn with our engine:
// "times_ours" is how many times our time they take, "PSNR" how close their picture is to ours, and
// the words behind say what makes it differ. The default instruction set is measured in turn with
// each set that the processor has: "times_best" beside the quickest, above 1 where that is quicker.
// Runs on one thread count processor time, so that other programs disturb them less; runs on two
// count real time.
// --megapixels=N: another size of the picture than 12.
#include "BenchmarkEffects.h"
#include "BenchmarkPictures.h"
#include "Measurement.h"
#include "Peers.h"

#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>
#include <exception>
#include <stdexcept>
#include <string>
#include <vector>

namespace LumetraBench {
namespace {

using namespace LumetraHost;

void RegisterFor(Image::Depth depth, Isa isa, int threads)
{
    for (const BenchmarkEffects& effects : GetBenchmarkEffects())
        RegisterOurs({effects.name, depth, threads}, isa);
    for (const char* const name : {BlendedChain, Blend})
        RegisterOurs({name, depth, threads}, isa);
}

void RegisterAll()
{
    for (const auto depth : {Image::Depth::Bits8, Image::Depth::Bits16}) {
        RegisterCopy(depth);
        for (const Isa isa : GetSupportedIsas())
            for (const int threads : {1, 2})
                RegisterFor(depth, isa, threads);
    }
    for (const auto depth : {Image::Depth::Bits8, Image::Depth::Bits16})
        for (const BenchmarkEffects& effects : GetBenchmarkEffects())
            RegisterDefault({effects.name, depth, 1});
    RegisterOpenColorIo();
    RegisterOpenCv();
#ifdef LUMETRA_VIPS_PEER
    RegisterVips();
#endif
#ifdef LUMETRA_GEGL_PEER
    RegisterGegl();
#endif
}

/// Throws std::invalid_argument for a size out of range.
double ReadMegapixels(const std::string& text)
{
    char* end = nullptr;
    const double megapixels = std::strtod(text.c_str(), &end);
    if (text.empty() || *end != '\0' || !(megapixels >= 0.01 && megapixels <= 200))
        throw std::invalid_argument("--megapixels: expected 0.01 to 200, found \"" + text + '"');
    return megapixels;
}

/// Takes our options; the others are left for Google Benchmark. Several hundred runs are to stay
/// within some minutes, so each is shorter than by default, unless the caller sets its time.
std::vector<std::string> ReadArguments(int argc, char** argv)
{
    const std::string megapixels = "--megapixels=";
    std::vector<std::string> others = {argv[0], "--benchmark_min_time=0.1"};
    for (int i = 1; i < argc; ++i) {
        const std::string argument = argv[i];
        if (argument.compare(0, megapixels.size(), megapixels) == 0)
            SetMegapixels(ReadMegapixels(argument.substr(megapixels.size())));
        else
            others.push_back(argument);
    }
    return others;
}

int Run(int argc, char** argv)
{
    std::vector<std::string> arguments = ReadArguments(argc, argv);
    std::vector<char*> words;
    for (std::string& argument : arguments)
        words.push_back(argument.data());
    int count = int(words.size());
    words.push_back(nullptr);
    RegisterAll();
    benchmark::Initialize(&count, words.data());
    if (benchmark::ReportUnrecognizedArguments(count, words.data()))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}

} // namespace
} // namespace LumetraBench

int main(int argc, char** argv)
{
    try {
        return LumetraBench::Run(argc, argv);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "bench_engine: %s\n", error.what());
        return 1;
    }
}
