// SPDX-License-Identifier: GPL-2.0-or-later
#include "Peers.h"

#include "BenchmarkEffects.h"
#include "BenchmarkPictures.h"
#include "Measurement.h"

#include "common/ForEachBand.h"
#include "common/OpenCvImage.h"
#include "engine/effects/channelmixer/ChannelMixerEffect.h"
#include "engine/effects/gaussianblur/GaussianBlurEffect.h"
#include "engine/effects/saturation/SaturationEffect.h"
#include "engine/effects/sharpen/SharpenEffect.h"

#include <opencv2/core.hpp>
#include <opencv2/imgproc.hpp>

namespace LumetraBench {
namespace {

using namespace LumetraHost;

using Operation = std::function<void(const cv::Mat& from, cv::Mat& to, int firstRow)>;

/// Draws bands of rows: most operations have no threads of their own.
Drawing DrawBands(const Task& task, const Operation& operation)
{
    return MakeDrawing(task.depth, [task, operation](Image& target) {
        cv::setNumThreads(1);
        const Image& photo = GetPhoto(task.depth);
        ForEachBand(photo.GetHeight(), task.threads, [&](int firstRow, int rows) {
            cv::Mat to = WrapRows(target, firstRow, rows);
            operation(WrapRows(photo, firstRow, rows), to, firstRow);
        });
    });
}

Drawing DrawTable(const Task& task)
{
    const cv::Mat table = cv::Mat(MakeTable8(FindEffects(task.effects)), true).reshape(4, 1);
    return DrawBands(task,
                     [table](const cv::Mat& from, cv::Mat& to, int) { cv::LUT(from, table, to); });
}

Drawing DrawMatrix(const Task& task, const ColourMatrix& colours)
{
    cv::Mat matrix = cv::Mat::eye(4, 4, CV_32F);
    for (int row = 0; row < 3; ++row)
        for (int column = 0; column < 3; ++column)
            matrix.at<float>(row, column) =
                float(colours.rows[std::size_t(row)][std::size_t(column)]);
    return DrawBands(
        task, [matrix](const cv::Mat& from, cv::Mat& to, int) { cv::transform(from, to, matrix); });
}

Drawing DrawSaturation(const Task& task)
{
    return DrawMatrix(task,
                      ReadParameters<SaturationParameters>(FindEffect(task.effects)).GetMatrix());
}

Drawing DrawMixer(const Task& task)
{
    return DrawMatrix(task,
                      ReadParameters<ChannelMixerParameters>(FindEffect(task.effects)).GetMatrix());
}

Drawing DrawBlend(const Task& task)
{
    const Image& picture = GetBlendedPicture(task.depth);
    return DrawBands(task, [&picture](const cv::Mat& from, cv::Mat& to, int firstRow) {
        cv::addWeighted(from, PhotoWeight, WrapRows(picture, firstRow, from.rows), 1 - PhotoWeight,
                        0, to);
    });
}

void Blur(const Image& photo, cv::Mat& target, double sigma, int threads)
{
    cv::setNumThreads(threads);
    cv::GaussianBlur(Wrap(photo), target, {}, sigma, sigma, cv::BORDER_REFLECT);
}

Drawing DrawBlur(const Task& task)
{
    const double sigma =
        GetPixels(ReadParameters<GaussianBlurParameters>(FindEffect(task.effects)).radius);
    return MakeDrawing(task.depth, [task, sigma](Image& target) {
        cv::Mat blurred = Wrap(target);
        Blur(GetPhoto(task.depth), blurred, sigma, task.threads);
    });
}

Drawing DrawSharpen(const Task& task)
{
    const auto parameters = ReadParameters<SharpenParameters>(FindEffect(task.effects));
    const double sigma = GetPixels(parameters.radius);
    const double amount = parameters.amount / 100;
    return MakeDrawing(task.depth, [task, sigma, amount](Image& target) {
        const Image& photo = GetPhoto(task.depth);
        cv::Mat sharpened = Wrap(target);
        Blur(photo, sharpened, sigma, task.threads);
        ForEachBand(photo.GetHeight(), task.threads, [&](int firstRow, int rows) {
            cv::Mat band = WrapRows(target, firstRow, rows);
            cv::addWeighted(WrapRows(photo, firstRow, rows), 1 + amount, band, -amount, 0, band);
        });
    });
}

struct OpenCvCase
{
    const char* effects;
    const char* remark;
    Drawing (*prepare)(const Task&);
};

} // namespace

void RegisterOpenCv()
{
    const OpenCvCase both[] = {{"saturation", "", DrawSaturation},
                               {"channelMixer", "encoded values, ours linear light", DrawMixer},
                               {"gaussianBlur", "encoded values, ours linear light", DrawBlur},
                               {"sharpen", "each channel, ours luma", DrawSharpen},
                               {Blend, "", DrawBlend}};
    for (const int threads : {1, 2}) {
        for (const char* const name : {"exposure", "contrast", "toneCurve", "liftGammaGain"})
            RegisterPeer("opencv", {name, Image::Depth::Bits8, threads}, "our effect as a table",
                         DrawTable);
        for (const auto depth : {Image::Depth::Bits8, Image::Depth::Bits16})
            for (const OpenCvCase& line : both)
                RegisterPeer("opencv", {line.effects, depth, threads}, line.remark, line.prepare);
    }
}

} // namespace LumetraBench
