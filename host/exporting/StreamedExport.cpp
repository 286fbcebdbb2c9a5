// SPDX-License-Identifier: GPL-2.0-or-later
#include "exporting/StreamedExport.h"

#include "exporting/ExportLayer.h"
#include "photo/colour/ColorConversion.h"
#include "photo/metadata/MetadataReader.h"
#include "photo/metadata/MetadataWriter.h"

#include <algorithm>
#include <deque>

namespace LumetraHost {
namespace {

/// Decoding, the layers and encoding as one band graph, with a ring of pixel rows between them.
class Stream
{
public:
    Stream(JpegRowReader& reader, const PictureRunForm& form) : m_reader(reader), m_form(form) {}

    void AddLayer(const ExportLook::Layer& layer);
    /// False when it was cancelled.
    bool Run(RowEncoder& encoder, ThreadPool& pool, const CancelToken* cancel);

private:
    /// The rows of one band and where they stand in their ring.
    struct BandRows
    {
        int first;
        int count;
    };

    /// Who writes a ring: layers that need no rows around draw in place, one after the other.
    struct RingNodes
    {
        int filler; ///< puts new rows in the place of old ones
        int last;   ///< after which they are finished
    };

    BandRows GetRows(int band, const Image& ring) const;
    int GetBandCount() const;
    Image& AddRing(std::size_t nextLayer);
    RingNodes AddLayers(BandGraph& graph, int decoder);
    static void ConnectRing(BandGraph& graph, int writer, int reader, const Image& ring);

    JpegRowReader& m_reader;
    PictureRunForm m_form;
    std::deque<ExportLayer> m_layers;
    std::deque<Image> m_rings;
};

void Stream::AddLayer(const ExportLook::Layer& layer)
{
    m_layers.emplace_back(layer, m_form);
    if (m_layers.back().ChangesNothing())
        m_layers.pop_back();
}

int Stream::GetBandCount() const
{
    return CountBands(m_form.height);
}

/// The rows that the layers from `nextLayer` on read: holds what the first that needs rows of its
/// own is behind, and a band for each thread to work ahead.
Image& Stream::AddRing(std::size_t nextLayer)
{
    while (nextLayer < m_layers.size() && m_layers[nextLayer].GetRun().CanDrawInPlace())
        ++nextLayer;
    const int latency = nextLayer < m_layers.size() ? m_layers[nextLayer].GetRun().GetLatency() : 0;
    const int bands = std::min(latency + 2 + m_form.threads, GetBandCount());
    m_rings.push_back(
        Image::AllocateUninitialised(m_form.width, bands * RowsPerBand, Image::Depth::Bits8));
    return m_rings.back();
}

Stream::BandRows Stream::GetRows(int band, const Image& ring) const
{
    const int y = band * RowsPerBand;
    return {y % ring.GetHeight(), std::min(RowsPerBand, m_form.height - y)};
}

/// A band takes the place of an older one in the ring when the reader is done with that.
void Stream::ConnectRing(BandGraph& graph, int writer, int reader, const Image& ring)
{
    graph.Connect(writer, reader, ring.GetHeight() / RowsPerBand);
}

/// From the node that fills the first ring to those of the last one.
Stream::RingNodes Stream::AddLayers(BandGraph& graph, int decoder)
{
    RingNodes nodes{decoder, decoder};
    for (std::size_t i = 0; i < m_layers.size(); ++i) {
        Image& source = m_rings.back();
        PictureRun& run = m_layers[i].GetRun();
        Image& target = run.CanDrawInPlace() ? source : AddRing(i + 1);
        const int drawn = run.AddTo(graph, RowWindow(source), RowWindow(target), nodes.last);
        if (!run.CanDrawInPlace()) {
            ConnectRing(graph, nodes.filler, drawn, source);
            nodes.filler = drawn;
        }
        nodes.last = drawn;
    }
    return nodes;
}

bool Stream::Run(RowEncoder& encoder, ThreadPool& pool, const CancelToken* cancel)
{
    BandGraph graph(GetBandCount());
    Image& decoded = AddRing(0);
    const auto decode = [this, &decoded](int band, int) {
        const BandRows rows = GetRows(band, decoded);
        m_reader.Read(decoded, rows.first, rows.count);
    };
    const RingNodes nodes = AddLayers(graph, graph.AddNode(decode, true));
    const Image& drawn = m_rings.back();
    const auto encode = [this, &drawn, &encoder](int band, int) {
        const BandRows rows = GetRows(band, drawn);
        encoder.Write(drawn, rows.first, rows.count);
    };
    const int end = graph.AddNode(encode, true);
    ConnectRing(graph, nodes.last, end, drawn);
    ConnectRing(graph, nodes.filler, end, drawn);
    return graph.Run(pool, m_form.threads, cancel);
}

} // namespace

std::unique_ptr<StreamedExport> StreamedExport::Open(const Bytes& content, const std::string& name)
{
    if (DetectPhotoFormat(content) != PhotoFormat::Jpeg)
        return nullptr;
    std::unique_ptr<StreamedExport> streamed(new StreamedExport(content, name));
    const JpegRowReader& reader = streamed->m_reader;
    auto read = MetadataReader::Read(content, {}, streamed->m_warnings);
    const QByteArray profile = reader.GetProfile();
    const bool isOtherSpace = profile.isEmpty() && read.adobeRgb;
    if (read.orientation > 1 || isOtherSpace || reader.IsProfileDamaged() ||
        !ColorConversion::IsSrgb(reader.GetMeaning(), profile))
        return nullptr;
    read.metadata.iccProfile = profile;
    streamed->m_metadata = MetadataWriter::Normalise(read.metadata, reader.GetWidth(),
                                                     reader.GetHeight(), streamed->m_warnings);
    return streamed;
}

Bytes StreamedExport::Run(const ExportLook& look, PhotoFormat format, const std::string& targetName,
                          const PhotoExport::Options& options, ThreadPool& pool, Warnings& warnings)
{
    warnings = m_warnings;
    PictureRunForm form;
    form.width = m_reader.GetWidth();
    form.height = m_reader.GetHeight();
    form.isa = GetDefaultIsa();
    form.threads = options.threads < 1 ? pool.GetThreadCount()
                                       : std::min(options.threads, pool.GetThreadCount());
    Stream stream(m_reader, form);
    for (const auto& layer : look.GetLayers(form.width, form.height, true, pool, options.cancel))
        stream.AddLayer(layer);
    const PictureForm picture{form.width, form.height, form.depth, true};
    const auto encoder =
        PhotoWriter::Start(picture, m_metadata, format, options.writing, targetName, &warnings);
    return stream.Run(*encoder, pool, options.cancel) ? encoder->Finish() : Bytes();
}

} // namespace LumetraHost
