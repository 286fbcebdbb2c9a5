// SPDX-License-Identifier: GPL-2.0-or-later
#include "BenchmarkPictures.h"

#include "engine/ColourMatrix.h"
#include "engine/saturation/SaturationParameters.h"
#include "engine/whitebalance/WhiteBalanceParameters.h"

#include <vips/vips.h>

#include <cmath>
#include <cstdlib>
#include <stdexcept>
#include <string>
#include <vector>

namespace LumetraBench {
namespace {

using LumetraHost::ColourMatrix;
using LumetraHost::Image;

/// The images of a pipeline; they are let go together.
class Pipeline
{
public:
    Pipeline() = default;
    Pipeline(const Pipeline&) = delete;
    Pipeline& operator=(const Pipeline&) = delete;
    ~Pipeline()
    {
        for (VipsImage* const image : m_images)
            g_object_unref(image);
    }

    /// The next image; libvips says by `status` whether it made one.
    VipsImage* Add(int status, VipsImage* image)
    {
        if (status != 0)
            throw std::runtime_error(std::string("libvips: ") + vips_error_buffer());
        m_images.push_back(image);
        return image;
    }

private:
    std::vector<VipsImage*> m_images;
};

VipsImage* MakeMatrix(Pipeline& pipeline, const ColourMatrix& matrix)
{
    return pipeline.Add(0, vips_image_new_matrix_from_array(3, 3, &matrix.rows[0][0], 9));
}

ColourMatrix MakeWhiteBalance()
{
    LumetraHost::WhiteBalanceParameters parameters;
    parameters.temperature = 7000;
    return parameters.GetMatrix();
}

ColourMatrix MakeSaturation()
{
    LumetraHost::SaturationParameters parameters;
    parameters.amount = 20;
    return parameters.GetMatrix();
}

/// The steps on linear light: exposure, white balance, contrast.
VipsImage* AddLinearSteps(Pipeline& pipeline, VipsImage* image)
{
    const double exponent = std::exp2(0.2);
    VipsImage* next = nullptr;
    int status = vips_linear1(image, &next, std::exp2(0.4), 0, nullptr);
    image = pipeline.Add(status, next);
    VipsImage* const balance = MakeMatrix(pipeline, MakeWhiteBalance());
    status = vips_recomb(image, &next, balance, nullptr);
    image = pipeline.Add(status, next);
    status = vips_math2_const1(image, &next, VIPS_OPERATION_MATH2_POW, exponent, nullptr);
    image = pipeline.Add(status, next);
    status = vips_linear1(image, &next, std::pow(0.18, 1 - exponent), 0, nullptr);
    return pipeline.Add(status, next);
}

/// Those on encoded values of 0 to 255: saturation, lift-gamma-gain.
VipsImage* AddEncodedSteps(Pipeline& pipeline, VipsImage* image)
{
    double slope[] = {1.05 / 255, 1.0 / 255, 1.0 / 255};
    double offset[] = {0, 0, 0.02};
    double power[] = {1, 0.95, 1};
    VipsImage* const saturation = MakeMatrix(pipeline, MakeSaturation());
    VipsImage* next = nullptr;
    int status = vips_recomb(image, &next, saturation, nullptr);
    image = pipeline.Add(status, next);
    status = vips_linear(image, &next, slope, offset, 3, nullptr);
    image = pipeline.Add(status, next);
    status = vips_math2_const(image, &next, VIPS_OPERATION_MATH2_POW, power, 3, nullptr);
    image = pipeline.Add(status, next);
    status = vips_linear1(image, &next, 255, 0, "uchar", TRUE, nullptr);
    return pipeline.Add(status, next);
}

void RunChain(benchmark::State& state, int threads)
{
    const Image& photo = GetPhoto(Image::Depth::Bits8);
    vips_concurrency_set(threads);
    vips_cache_set_max(0);
    for (auto iteration : state) {
        Pipeline pipeline;
        VipsImage* image =
            pipeline.Add(0, vips_image_new_from_memory(photo.Row(0), photo.GetByteCount(), Width,
                                                       Height, 4, VIPS_FORMAT_UCHAR));
        image->Type = VIPS_INTERPRETATION_sRGB;
        VipsImage* next = nullptr;
        int status = vips_extract_band(image, &next, 0, "n", 3, nullptr);
        image = pipeline.Add(status, next);
        status = vips_colourspace(image, &next, VIPS_INTERPRETATION_scRGB, nullptr);
        image = AddLinearSteps(pipeline, pipeline.Add(status, next));
        status = vips_colourspace(image, &next, VIPS_INTERPRETATION_sRGB, nullptr);
        image = AddEncodedSteps(pipeline, pipeline.Add(status, next));
        std::size_t size = 0;
        void* const pixels = vips_image_write_to_memory(image, &size);
        if (!pixels)
            throw std::runtime_error(std::string("libvips: ") + vips_error_buffer());
        g_free(pixels);
    }
    CountPixels(state);
}

} // namespace

void RegisterVips()
{
    if (VIPS_INIT("bench_engine"))
        throw std::runtime_error("libvips cannot be started");
    for (const int threads : {1, 2})
        RegisterProcess("libvips_chain5/8bit/threads:" + std::to_string(threads), threads,
                        [threads](benchmark::State& state) { RunChain(state, threads); });
}

} // namespace LumetraBench
