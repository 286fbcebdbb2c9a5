// SPDX-License-Identifier: GPL-2.0-or-later
#include "lut/OcioLutReader.h"

#include "engine/effects/liftgammagain/LiftGammaGainEffect.h"
#include "engine/effects/lut3d/Lut3dSettings.h"
#include "lut/LutError.h"

#include "Zorvik/Exception.h"
#include "Zorvik/Quindle/EffectSettingsImpl.h"

#include <OpenColorIO/OpenColorIO.h>

#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>
#include <cmath>
#include <optional>

namespace LumetraHost {
namespace {

namespace Ocio = OCIO_NAMESPACE;
using Kind = LookUpTable::Kind;
using Transforms = std::vector<Ocio::ConstTransformRcPtr>;
using Zorvik::Quindle::EffectPtr;

/// OpenColorIO keeps files by their names, but a file may have changed since; this clears its
/// cache.
struct FreshCache
{
    FreshCache()
    {
        Ocio::SetLoggingLevel(Ocio::LOGGING_LEVEL_NONE);
        Ocio::ClearAllCaches();
    }
    ~FreshCache() { Ocio::ClearAllCaches(); }
};

/// Throws the message of OpenColorIO. About a file as a whole it is a general one that ends with
/// the words of the format of the file's extension, often with the line.
[[noreturn]] void FailAsOcio(const QString& path, const std::exception& error)
{
    static const QRegularExpression inner(
        QStringLiteral("failed with: (?:At line (\\d+): )?(.+)$"));
    const QString text = QString::fromUtf8(error.what()).simplified();
    const auto match = inner.match(text);
    const QString reason = match.hasMatch() ? match.captured(2) : text;
    FailInLut(path, match.captured(1).toLongLong(),
              "expected a file that can be read: " + reason.toStdString());
}

Transforms GetSteps(const std::string& file)
{
    const auto transform = Ocio::FileTransform::Create();
    transform->setSrc(file.c_str());
    transform->setInterpolation(Ocio::INTERP_TETRAHEDRAL);
    const auto group = Ocio::Config::CreateRaw()->getProcessor(transform)->createGroupTransform();
    Transforms steps;
    for (int i = 0; i < group->getNumTransforms(); ++i)
        steps.push_back(std::as_const(*group).getTransform(i));
    return steps;
}

/// The step as a transform of this kind that runs forwards; null for any other.
template <class Transform>
std::shared_ptr<const Transform> GetForward(const Ocio::ConstTransformRcPtr& step)
{
    const auto typed = std::dynamic_pointer_cast<const Transform>(step);
    return typed && typed->getDirection() == Ocio::TRANSFORM_DIR_FORWARD ? typed : nullptr;
}

void Apply(const Transforms& steps, LookUpTable& table)
{
    const auto group = Ocio::GroupTransform::Create();
    for (const auto& step : steps)
        group->appendTransform(step->createEditableCopy());
    const auto processor = Ocio::Config::CreateRaw()->getProcessor(group)->getOptimizedCPUProcessor(
        Ocio::OPTIMIZATION_LOSSLESS);
    Ocio::PackedImageDesc image(table.values.data(), static_cast<long>(table.GetCount()), 1, 4);
    processor->apply(image);
}

struct Domain
{
    std::array<double, 3> minimum = {0, 0, 0};
    std::array<double, 3> maximum = {1, 1, 1};
};

/// The colours that a matrix in front of a table brings to 0..1; nothing when it mixes channels.
std::optional<Domain> GetDomain(const Ocio::MatrixTransform& transform)
{
    double matrix[16], offset[4];
    transform.getMatrix(matrix);
    transform.getOffset(offset);
    Domain domain;
    for (std::size_t row = 0; row < 3; ++row) {
        for (std::size_t column = 0; column < 4; ++column)
            if (row != column && matrix[4 * row + column] != 0)
                return std::nullopt;
        const double scale = matrix[5 * row];
        if (!(scale > 0) || !std::isfinite(1 / scale))
            return std::nullopt;
        domain.minimum[row] = -offset[row] / scale;
        domain.maximum[row] = (1 - offset[row]) / scale;
    }
    return domain;
}

/// The size of a list of curves or of a cube that can be stored as it is; 0 for any other step.
int GetStoredSize(const Ocio::ConstTransformRcPtr& step, Kind kind)
{
    if (const auto cube = GetForward<Ocio::Lut3DTransform>(step); cube && kind == Kind::Cube)
        return std::min(static_cast<int>(cube->getGridSize()), OcioLutReader::LargestStoredCube);
    const auto curve = GetForward<Ocio::Lut1DTransform>(step);
    const bool isPlain =
        curve && kind == Kind::Curve && !curve->getInputHalfDomain() &&
        curve->getHueAdjust() == Ocio::HUE_NONE &&
        curve->getLength() <= static_cast<unsigned long>(LookUpTable::LargestCurve);
    return isPlain ? static_cast<int>(curve->getLength()) : 0;
}

/// Takes a table of that kind off the front of the steps, with the matrix of its domain.
std::optional<LookUpTable> TakeTable(Transforms& steps, Kind kind)
{
    Domain domain;
    std::size_t used = 0;
    if (!steps.empty())
        if (const auto matrix = GetForward<Ocio::MatrixTransform>(steps[0])) {
            const auto found = GetDomain(*matrix);
            if (!found)
                return std::nullopt;
            domain = *found;
            used = 1;
        }
    const int size = used < steps.size() ? GetStoredSize(steps[used], kind) : 0;
    if (size < 2)
        return std::nullopt;
    auto table = LookUpTable::MakeIdentity(kind, size, domain.minimum, domain.maximum);
    const auto end = steps.begin() + static_cast<std::ptrdiff_t>(used + 1);
    Apply(Transforms(steps.begin(), end), table);
    steps.erase(steps.begin(), end);
    return table;
}

LookUpTable Sample(const Transforms& steps)
{
    auto table = LookUpTable::MakeIdentity(Kind::Cube, OcioLutReader::LargestStoredCube, {0, 0, 0},
                                           {1, 1, 1});
    Apply(steps, table);
    return table;
}

void CheckFinite(const QString& path, const LookUpTable& table)
{
    for (const float value : table.values)
        if (!std::isfinite(value))
            FailInLut(path, 0, "expected finite colours, found infinity or \"not a number\"");
}

EffectPtr MakeTables(const QString& path, const Transforms& steps)
{
    Transforms rest = steps;
    auto curve = TakeTable(rest, Kind::Curve);
    auto cube = TakeTable(rest, Kind::Cube);
    if (!rest.empty()) {
        curve.reset();
        cube = Sample(steps);
    }
    for (const auto* const table : {curve ? &*curve : nullptr, cube ? &*cube : nullptr})
        if (table)
            CheckFinite(path, *table);
    return Lut3dSettings::Create(curve ? &*curve : nullptr, cube ? &*cube : nullptr);
}

void CheckRange(const QString& path, const std::string& id, const std::string& name, double value)
{
    for (const auto& parameter : DescribeParameters<LiftGammaGainParameters>()) {
        if (parameter.name != name || (value >= parameter.minimum && value <= parameter.maximum))
            continue;
        FailInLut(path, 0,
                  "correction \"" + id + "\": expected a " + name + " from " +
                      QByteArray::number(parameter.minimum).toStdString() + " to " +
                      QByteArray::number(parameter.maximum).toStdString() + ", found " +
                      QByteArray::number(value).toStdString());
    }
}

EffectPtr MakeDecisionList(const QString& path, const Ocio::CDLTransform& list, bool clamps)
{
    static const char* const names[10] = {"slopeRed",    "slopeGreen", "slopeBlue", "offsetRed",
                                          "offsetGreen", "offsetBlue", "powerRed",  "powerGreen",
                                          "powerBlue",   "saturation"};
    double values[10];
    list.getSOP(values);
    values[9] = list.getSat();
    const EffectPtr effect =
        Zorvik::Quindle::EffectSettingsImpl::Create(LiftGammaGainParameters::EffectId);
    for (int i = 0; i < 10; ++i) {
        CheckRange(path, list.getID(), names[i], values[i]);
        effect->SetParameter(names[i], values[i]);
    }
    effect->SetParameter("clamp", clamps ? 1 : 0);
    return effect;
}

EffectPtr MakeEffect(const QString& path, const Transforms& steps)
{
    const auto list = steps.size() == 1 ? GetForward<Ocio::CDLTransform>(steps.front()) : nullptr;
    if (list)
        return MakeDecisionList(path, *list, list->getStyle() == Ocio::CDL_ASC);
    return MakeTables(path, steps);
}

std::string GetFile(const QString& path)
{
    return QFileInfo(path).absoluteFilePath().toStdString();
}

} // namespace

EffectPtr OcioLutReader::ReadTable(const QString& path)
{
    const FreshCache fresh;
    try {
        return MakeEffect(path, GetSteps(GetFile(path)));
    } catch (const Zorvik::Exception&) {
        throw;
    } catch (const std::exception& error) {
        // OpenColorIO lets exceptions of the libraries beneath it through.
        FailAsOcio(path, error);
    }
}

LutLooks OcioLutReader::ReadDecisionLists(const QString& path, const std::string& name)
{
    const FreshCache fresh;
    LutLooks looks;
    try {
        const auto group = Ocio::CDLTransform::CreateGroupFromFile(GetFile(path).c_str());
        for (int i = 0; i < group->getNumTransforms(); ++i) {
            const auto list = std::dynamic_pointer_cast<const Ocio::CDLTransform>(
                std::as_const(*group).getTransform(i));
            const std::string id = list ? list->getID() : "";
            if (list)
                looks.push_back({id.empty() ? name : id, MakeDecisionList(path, *list, true)});
        }
    } catch (const Zorvik::Exception&) {
        throw;
    } catch (const std::exception& error) {
        FailAsOcio(path, error);
    }
    if (looks.empty())
        FailInLut(path, 0, "expected at least one colour correction, found none");
    return looks;
}

} // namespace LumetraHost
