// SPDX-License-Identifier: GPL-2.0-or-later
// How much memory apply takes for many photos.
#include "CliTest.h"
#include "Places.h"

#include "exporting/ExportMemory.h"
#include "exporting/ExportRecipe.h"
#include "image/DepthConversion.h"
#include "photo/PhotoWriter.h"
#include "support/AddressSanitizer.h"

#include <QDir>
#include <QFile>
#include <QProcess>

#include <algorithm>
#include <cstdint>

using LumetraHost::ChromaSampling;
using LumetraHost::ExportMemory;
using LumetraHost::ExportRecipe;
using LumetraHost::Image;
using LumetraHost::PhotoFormat;

namespace {

constexpr int KilobytesPerMegabyte = 1024;

class ApplyMemoryTest : public CliTest
{
protected:
    void SetUp() override
    {
        if (LumetraTest::HasAddressSanitizer)
            GTEST_SKIP() << "the address sanitizer keeps memory that is free";
        CliTest::SetUp();
    }

    /// The program at work, and its memory as it prints its lines.
    class WatchedRun
    {
    public:
        WatchedRun(const QString& folder, const char* line)
        {
            m_process.setWorkingDirectory(folder);
            m_process.start(QStringLiteral(LUMETRA_PRESETS_PROGRAM),
                            Words(line) + Words("--only-named --catalogue looks.json"));
        }

        /// Waits for the next line; false at the end of them all.
        bool WaitForLine()
        {
            while (!m_process.canReadLine())
                if (!m_process.waitForReadyRead(-1))
                    return false;
            m_process.readLine();
            return true;
        }

        /// A number of /proc, such as "VmHWM", in kilobytes; 0 when the program has ended.
        int ReadMemory(const char* name) const
        {
            QFile status(QStringLiteral("/proc/%1/status").arg(m_process.processId()));
            if (!status.open(QIODevice::ReadOnly))
                return 0;
            for (const QByteArray& text : status.readAll().split('\n'))
                if (text.startsWith(name))
                    return text.mid(text.indexOf(':') + 1).simplified().split(' ').first().toInt();
            return 0;
        }

        int Finish()
        {
            m_process.waitForFinished(-1);
            return m_process.exitCode();
        }

    private:
        QProcess m_process;
    };

    /// A photo that no compression makes small.
    void WriteNoise(const char* name, int width, int height,
                    Image::Depth depth = Image::Depth::Bits16) const
    {
        LumetraHost::Photo photo;
        photo.image = Image::Allocate(width, height, Image::Depth::Bits16);
        std::uint32_t state = 1;
        for (int y = 0; y < height; ++y)
            for (int i = 0; i < 4 * width; ++i) {
                state = state * 1664525u + 1013904223u;
                photo.image.Row16(y)[i] =
                    i % 4 == 3 ? 0xFFFF : static_cast<std::uint16_t>(state >> 16);
            }
        Image narrow = Image::Allocate(width, height, depth);
        CopyRows(photo.image, 0, narrow, 0, height);
        photo.image = narrow;
        LumetraHost::PhotoWriter::Write(Path(name), photo);
    }

    void CopyPhoto(const char* name, int count) const
    {
        QDir(folder.path()).mkdir(QStringLiteral("many"));
        for (int i = 0; i < count; ++i)
            ASSERT_TRUE(QFile::copy(Path(name), Path("many/") + QStringLiteral("%1.png").arg(
                                                                    i, 4, 10, QLatin1Char('0'))));
    }

    /// The largest memory of a whole run, in kilobytes, by what it says at each line.
    int FindPeak(const char* line) const
    {
        WatchedRun run(folder.path(), line);
        int peak = 0;
        while (run.WaitForLine())
            peak = std::max(peak, run.ReadMemory("VmHWM"));
        EXPECT_EQ(run.Finish(), 0);
        return peak;
    }
};

} // namespace

TEST_F(ApplyMemoryTest, manyJobsOn16BitPhotosStayWithinTheBudget)
{
    constexpr int Megabytes = 160;
    WriteNoise("noise.png", 1200, 900);
    WritePhoto("tiny.png", 4, 4);
    CopyPhoto("noise.png", 24);

    const int base = FindPeak("apply tiny.png -p test.grey -o out/{name}.png");
    const int peak = FindPeak("apply many -p test.grey -o out/{name}.png --jobs 64 --memory 160");

    EXPECT_GT(base, 0);
    EXPECT_LE(peak - base, Megabytes * KilobytesPerMegabyte) << base << " " << peak;
}

TEST_F(ApplyMemoryTest, noFormatTakesMoreThanIsEstimated)
{
    WriteNoise("noise.png", 3000, 2000, Image::Depth::Bits8);
    WritePhoto("tiny.png", 4, 4);
    CopyPhoto("tiny.png", 40); // the program is still at work when its memory is looked at
    const int base = FindPeak("apply many -p test.grey -o base/{name}.png -j 1");
    ExportRecipe progressive;
    progressive.encoding = {100, ChromaSampling::Full, true};
    ExportRecipe webp;
    webp.format = PhotoFormat::Webp;
    ExportRecipe lossless = webp;
    lossless.encoding.isLossless = true;
    ExportRecipe png;
    png.format = PhotoFormat::Png;
    const std::pair<const char*, ExportRecipe> cases[] = {
        {"{name}.png", png},
        {"{name}.jpg --quality 100 --progressive", progressive},
        {"{name}.webp --quality 100", webp},
        {"{name}.webp --lossless", lossless},
    };
    for (const auto& [form, recipe] : cases) {
        const int peak = FindPeak(
            (std::string("apply noise.png many -p test.grey -j 1 --overwrite -o out/") + form)
                .c_str());
        const auto estimate = ExportMemory::Estimate(Path("noise.png"), recipe) >> 10;
        EXPECT_GT(peak, base) << form;
        EXPECT_LE(peak - base, static_cast<int>(estimate)) << form;
    }
}

TEST_F(ApplyMemoryTest, theLastPhotosTakeNoMoreThanTheFirst)
{
    constexpr int Count = 2000;
    constexpr int Tenth = Count / 10;
    constexpr int Allowance =
        4 * KilobytesPerMegabyte; // of a thousand paths and messages, and noise
    WritePhoto("a.png", 64, 48);
    CopyPhoto("a.png", Count);

    WatchedRun run(folder.path(), "apply many -p test.bright -o out/{name}.png -j 2");
    int first = 0;
    int last = 0;
    int lines = 0;
    for (; run.WaitForLine(); ++lines) {
        int& largest = lines < Tenth ? first : last;
        if (lines < Tenth || lines >= Count - Tenth)
            largest = std::max(largest, run.ReadMemory("VmRSS"));
    }

    EXPECT_EQ(run.Finish(), 0);
    EXPECT_EQ(lines, Count);
    EXPECT_GT(first, 0);
    EXPECT_LE(last, first + Allowance);
}
