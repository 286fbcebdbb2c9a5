// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/lut/LutFiles.h"

#include "engine/effects/EffectKinds.h"
#include "lut/LutReader.h"

#include "Zorvik/Exception.h"

#include <QFile>

#include <cmath>

namespace LumetraHost {
namespace {

QByteArray Row(double red, double green, double blue)
{
    return QByteArray::number(red, 'f', 7) + ' ' + QByteArray::number(green, 'f', 7) + ' ' +
           QByteArray::number(blue, 'f', 7) + '\n';
}

double Power(double value, double exponent)
{
    return std::copysign(std::pow(std::abs(value), exponent), value);
}

} // namespace

QString LutFiles::Write(const char* name, const QByteArray& content) const
{
    QFile file(Path(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    EXPECT_EQ(file.write(content), content.size());
    return file.fileName();
}

std::string LutFiles::ErrorOf(const QString& path) const
{
    RegisterEffects();
    try {
        LutReader::Read(path);
    } catch (const Zorvik::Exception& error) {
        const std::string text = error.what();
        const std::string place = folder.path().toStdString() + "/";
        EXPECT_EQ(text.rfind(place, 0), 0u) << text;
        return text.substr(place.size());
    }
    return "no error";
}

std::array<double, 3> LutFiles::Look(double red, double green, double blue)
{
    return {0.9 * Power(red, 1.2) + 0.08 * blue, 0.04 + 0.85 * Power(green, 0.9) + 0.05 * red,
            0.1 + 0.7 * Power(blue, 1.1) + 0.1 * green * red};
}

QByteArray LutFiles::CubeRows(int size, double minimum, double maximum)
{
    const auto at = [=](int i) { return minimum + i * (maximum - minimum) / (size - 1); };
    QByteArray rows;
    for (int b = 0; b < size; ++b)
        for (int g = 0; g < size; ++g)
            for (int r = 0; r < size; ++r) {
                const auto c = Look(at(r), at(g), at(b));
                rows += Row(c[0], c[1], c[2]);
            }
    return rows;
}

QByteArray LutFiles::CurveRows(int size, double minimum, double maximum)
{
    QByteArray rows;
    for (int i = 0; i < size; ++i) {
        const double v = minimum + i * (maximum - minimum) / (size - 1);
        rows += Row(Power(v, 1.3), 0.1 + 0.8 * v, 1.02 * Power(v, 0.8));
    }
    return rows;
}

} // namespace LumetraHost
