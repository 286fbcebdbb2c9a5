// SPDX-License-Identifier: GPL-2.0-or-later
#include "lut/XmlTableCheck.h"

#include "engine/lut3d/LookUpTable.h"
#include "lut/LutError.h"

#include <QSet>
#include <QVector>
#include <QXmlStreamReader>

#include <cmath>
#include <limits>

namespace LumetraHost {
namespace {

// Rows of a cube's array times three colours.
constexpr std::size_t MostNumbers =
    std::size_t{3} * LookUpTable::LargestCube * LookUpTable::LargestCube * LookUpTable::LargestCube;
constexpr int DeepestNesting = 64;

/// Elements that hold nothing but numbers.
const QSet<QString>& GetNumberElements()
{
    static const QSet<QString> names = {
        QStringLiteral("Array"),      QStringLiteral("Slope"),       QStringLiteral("Offset"),
        QStringLiteral("Power"),      QStringLiteral("Saturation"),  QStringLiteral("minInValue"),
        QStringLiteral("maxInValue"), QStringLiteral("minOutValue"), QStringLiteral("maxOutValue"),
        QStringLiteral("IndexMap")};
    return names;
}

class Checker
{
public:
    Checker(const QString& path, const QByteArray& content) : m_path(path), m_reader(content) {}

    void Run()
    {
        while (!m_reader.atEnd()) {
            const auto token = m_reader.readNext();
            if (token == QXmlStreamReader::DTD)
                Fail(m_reader.lineNumber(), "expected no document type");
            if (token == QXmlStreamReader::StartElement)
                VisitElement();
            else if (token == QXmlStreamReader::EndElement)
                --m_depth;
        }
        if (m_reader.hasError())
            Fail(m_reader.lineNumber(),
                 "expected well-formed XML: " + m_reader.errorString().toStdString());
    }

private:
    [[noreturn]] void Fail(qint64 line, const std::string& message) const
    {
        FailInLut(m_path, line, message);
    }

    void VisitElement()
    {
        if (++m_depth > DeepestNesting)
            Fail(m_reader.lineNumber(), "expected nesting of at most 64 levels");
        const QString name = m_reader.name().toString();
        if (!GetNumberElements().contains(name))
            return;
        const std::size_t expected = name == QLatin1String("Array") ? ReadArrayCount() : 0;
        const qint64 line = m_reader.lineNumber();
        const std::size_t found = CountNumbers(m_reader.readElementText(), line);
        --m_depth;
        if (expected != 0 && found != expected)
            Fail(line, "expected " + std::to_string(expected) + " numbers in the array, found " +
                           std::to_string(found));
    }

    std::size_t ReadArrayCount() const
    {
        const QString text = m_reader.attributes().value(QLatin1String("dim")).toString();
        std::size_t count = 1;
        for (const QString& word : text.simplified().split(QLatin1Char(' '))) {
            bool isNumber = false;
            const uint part = word.toUInt(&isNumber);
            if (!isNumber || part == 0 || part > MostNumbers || (count *= part) > MostNumbers)
                Fail(m_reader.lineNumber(),
                     "expected an array of at most " + std::to_string(MostNumbers) +
                         " numbers, found \"dim\" \"" + text.toStdString() + "\"");
        }
        return count;
    }

    /// `line` is that of the text's beginning.
    std::size_t CountNumbers(const QString& text, qint64 line) const
    {
        std::size_t count = 0;
        for (const QStringRef& row : text.splitRef(QLatin1Char('\n'))) {
            for (const QStringRef& word : row.split(QLatin1Char(' '), Qt::SkipEmptyParts))
                if (!word.trimmed().isEmpty()) {
                    CheckNumber(word.trimmed(), line);
                    ++count;
                }
            ++line;
        }
        return count;
    }

    void CheckNumber(const QStringRef& word, qint64 line) const
    {
        for (const QStringRef& part : word.split(QLatin1Char('@'))) { // pairs of an IndexMap
            bool isNumber = false;
            const double number = part.toDouble(&isNumber);
            if (!isNumber || !std::isfinite(number) ||
                std::abs(number) > static_cast<double>(std::numeric_limits<float>::max()))
                Fail(line,
                     "expected a finite number, found \"" + word.toString().toStdString() + "\"");
        }
    }

    const QString& m_path;
    QXmlStreamReader m_reader;
    int m_depth = 0;
};

} // namespace

void XmlTableCheck::Check(const QString& path, const QByteArray& content)
{
    Checker(path, content).Run();
}

} // namespace LumetraHost
