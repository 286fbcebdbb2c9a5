// SPDX-License-Identifier: GPL-2.0-or-later
#include "lut/XmlTableCheck.h"

#include "engine/effects/lut3d/LookUpTable.h"
#include "lut/LutError.h"

#include <QSet>
#include <QStringList>
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

std::string Quote(const QString& name)
{
    return "<" + name.toStdString() + ">";
}

/// An element whose end is yet to come.
struct OpenElement
{
    QString name;
    qint64 line;
    QSet<QString> children;
};

class Checker
{
public:
    Checker(const QString& path, const QByteArray& content, const QStringList& roots)
        : m_path(path), m_reader(content), m_roots(roots)
    {
    }

    void Run()
    {
        while (!m_reader.atEnd()) {
            const auto token = m_reader.readNext();
            if (token == QXmlStreamReader::DTD)
                Fail(m_reader.lineNumber(), "expected no document type");
            if (token == QXmlStreamReader::StartElement)
                VisitElement();
            else if (token == QXmlStreamReader::EndElement)
                LeaveElement();
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
        const QString name = m_reader.name().toString();
        const qint64 line = m_reader.lineNumber();
        if (m_open.size() >= DeepestNesting)
            Fail(line, "expected nesting of at most 64 levels");
        if (m_open.isEmpty())
            CheckRoot(name);
        else
            m_open.last().children.insert(name);
        if (name == QLatin1String("ColorCorrection"))
            TakeId();
        if (GetNumberElements().contains(name))
            return VisitNumbers(name, line);
        m_open.append({name, line, {}});
    }

    void VisitNumbers(const QString& name, qint64 line)
    {
        const std::size_t expected = GetExpectedCount(name);
        const QString text = m_reader.readElementText();
        const std::size_t found = CountNumbers(name, text, line);
        if (expected != 0 && found != expected)
            Fail(line, "expected " + std::to_string(expected) + " numbers in " + Quote(name) +
                           ", found " + std::to_string(found));
    }

    void CheckRoot(const QString& name) const
    {
        if (m_roots.contains(name))
            return;
        std::string expected;
        for (const QString& root : m_roots)
            expected += (expected.empty() ? "" : " or ") + Quote(root);
        Fail(m_reader.lineNumber(), "expected " + expected + ", found " + Quote(name));
    }

    void TakeId()
    {
        const QString id = m_reader.attributes().value(QLatin1String("id")).toString();
        if (!id.isEmpty() && m_ids.contains(id))
            Fail(m_reader.lineNumber(),
                 "expected an id of its own, found \"" + id.toStdString() + "\" again");
        m_ids.insert(id);
    }

    void LeaveElement()
    {
        const OpenElement element = m_open.takeLast();
        if (element.name == QLatin1String("SOPNode"))
            for (const char* part : {"Slope", "Offset", "Power"})
                Require(element, QLatin1String(part));
        if (element.name == QLatin1String("LUT1D") || element.name == QLatin1String("LUT3D") ||
            element.name == QLatin1String("Matrix"))
            Require(element, QLatin1String("Array"));
        if (element.name == QLatin1String("ProcessList"))
            RequireSteps(element);
    }

    void Require(const OpenElement& element, const QString& child) const
    {
        if (!element.children.contains(child))
            Fail(element.line,
                 "expected " + Quote(child) + " in " + Quote(element.name) + ", found none");
    }

    void RequireSteps(const OpenElement& element) const
    {
        static const QSet<QString> remarks = {
            QStringLiteral("Description"), QStringLiteral("InputDescriptor"),
            QStringLiteral("OutputDescriptor"), QStringLiteral("Info")};
        if ((element.children - remarks).isEmpty())
            Fail(element.line,
                 "expected at least one step in " + Quote(element.name) + ", found none");
    }

    /// How many numbers the element `name` must have; 0 for any.
    std::size_t GetExpectedCount(const QString& name) const
    {
        if (name == QLatin1String("Array"))
            return ReadArrayCount();
        if (name == QLatin1String("Saturation"))
            return 1;
        const bool isTriple = name == QLatin1String("Slope") || name == QLatin1String("Offset") ||
                              name == QLatin1String("Power");
        return isTriple ? 3 : 0;
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
    std::size_t CountNumbers(const QString& name, const QString& text, qint64 line) const
    {
        std::size_t count = 0;
        for (const QStringRef& row : text.splitRef(QLatin1Char('\n'))) {
            for (const QStringRef& word : row.split(QLatin1Char(' '), Qt::SkipEmptyParts))
                if (!word.trimmed().isEmpty()) {
                    CheckSign(name, CheckNumber(word.trimmed(), line), line);
                    ++count;
                }
            ++line;
        }
        return count;
    }

    /// Decision lists have no negative slopes and saturations, and powers above 0.
    void CheckSign(const QString& name, double number, qint64 line) const
    {
        const bool isPower = name == QLatin1String("Power");
        const bool isSigned =
            !isPower && name != QLatin1String("Slope") && name != QLatin1String("Saturation");
        if (isSigned || number > 0 || (number == 0 && !isPower))
            return;
        Fail(line, std::string("expected numbers ") + (isPower ? "above" : "from") + " 0 in " +
                       Quote(name) + ", found " + QByteArray::number(number).toStdString());
    }

    double CheckNumber(const QStringRef& word, qint64 line) const
    {
        double last = 0;
        for (const QStringRef& part : word.split(QLatin1Char('@'))) { // pairs of an IndexMap
            bool isNumber = false;
            const double number = part.toDouble(&isNumber);
            if (!isNumber || !std::isfinite(number) ||
                std::abs(number) > static_cast<double>(std::numeric_limits<float>::max()))
                Fail(line,
                     "expected a finite number, found \"" + word.toString().toStdString() + "\"");
            last = number;
        }
        return last;
    }

    const QString& m_path;
    QXmlStreamReader m_reader;
    QStringList m_roots;
    QVector<OpenElement> m_open;
    QSet<QString> m_ids;
};

} // namespace

void XmlTableCheck::CheckClf(const QString& path, const QByteArray& content)
{
    Checker(path, content, {QStringLiteral("ProcessList")}).Run();
}

void XmlTableCheck::CheckCdl(const QString& path, const QByteArray& content)
{
    Checker(path, content,
            {QStringLiteral("ColorCorrection"), QStringLiteral("ColorCorrectionCollection"),
             QStringLiteral("ColorDecisionList")})
        .Run();
}

} // namespace LumetraHost
