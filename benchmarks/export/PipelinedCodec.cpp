// SPDX-License-Identifier: GPL-2.0-or-later
#include "PipelinedCodec.h"

#include "photo/PhotoReader.h"
#include "photo/PhotoWriter.h"
#include "photo/file/Decoders.h"
#include "photo/jpeg/JpegRowReader.h"
#include "storage/CheckedFileWriter.h"

#include <algorithm>
#include <condition_variable>
#include <future>
#include <mutex>

namespace LumetraBench {
namespace {

using namespace LumetraHost;

constexpr int BandRows = 32;
constexpr int Bands = 8; ///< between the two threads

/// Counts the bands that are ready.
class Gauge
{
public:
    void Add(int count)
    {
        const std::lock_guard lock(m_mutex);
        m_count += count;
        m_hasChanged.notify_all();
    }
    void WaitFor(int count)
    {
        std::unique_lock lock(m_mutex);
        m_hasChanged.wait(lock, [&] { return m_count >= count; });
        m_count -= count;
    }

private:
    std::mutex m_mutex;
    std::condition_variable m_hasChanged;
    int m_count = 0;
};

} // namespace

void RunPipelinedCodec(const QString& source, const QString& target)
{
    const Bytes content = PhotoReader::ReadContent(source);
    JpegRowReader reader(content, source.toStdString());
    const int height = reader.GetHeight();
    const auto encoder = PhotoWriter::Start({reader.GetWidth(), height, Image::Depth::Bits8, true},
                                            {}, PhotoFormat::Jpeg, {}, target.toStdString());
    Image ring =
        Image::AllocateUninitialised(reader.GetWidth(), Bands * BandRows, Image::Depth::Bits8);
    Gauge full;
    Gauge empty;
    empty.Add(Bands);
    const auto rowsOf = [height](int y) { return std::min(BandRows, height - y); };
    auto decoding = std::async(std::launch::async, [&] {
        for (int y = 0; y < height; y += BandRows) {
            empty.WaitFor(1);
            reader.Read(ring, y % ring.GetHeight(), rowsOf(y));
            full.Add(1);
        }
    });
    for (int y = 0; y < height; y += BandRows) {
        full.WaitFor(1);
        encoder->Write(ring, y % ring.GetHeight(), rowsOf(y));
        empty.Add(1);
    }
    decoding.get();
    const Bytes encoded = encoder->Finish();
    CheckedFileWriter::Write(target, encoded.data(), encoded.size());
}

void RunReducedDecode(const QString& source, int smallestSide)
{
    const Bytes content = PhotoReader::ReadContent(source);
    DecodeJpeg(content, source.toStdString(), smallestSide);
}

} // namespace LumetraBench
