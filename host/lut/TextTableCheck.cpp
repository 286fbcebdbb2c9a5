// SPDX-License-Identifier: GPL-2.0-or-later
#include "lut/TextTableCheck.h"

#include "engine/effects/lut3d/LookUpTable.h"
#include "lut/LutError.h"

#include <QList>

#include <array>
#include <cmath>
#include <functional>
#include <limits>

namespace LumetraHost {
namespace {

using Words = QList<QByteArray>;

constexpr char ByteOrderMark[] = "\xef\xbb\xbf";
constexpr int LongestQuote = 40;

/// One line of a file, without comment and outer spaces.
struct Line
{
    const QString& path;
    qint64 number;
    Words words;

    [[noreturn]] void Fail(const std::string& message) const { FailInLut(path, number, message); }
};

/// Calls `visit` for each line that has words; returns the number of the last line.
qint64 ForEachLine(const QString& path, const QByteArray& content,
                   const std::function<void(const Line&)>& visit)
{
    qint64 number = 0;
    int begin = 0;
    while (begin < content.size()) {
        int end = content.indexOf('\n', begin);
        end = end < 0 ? content.size() : end;
        ++number;
        const QByteArray text = content.mid(begin, end - begin).simplified();
        if (!text.isEmpty() && text.front() != '#')
            visit({path, number, text.split(' ')});
        begin = end + 1;
    }
    return number;
}

/// "nan" and "inf" are numbers too, bad ones.
bool LooksLikeNumber(const QByteArray& word)
{
    const char first =
        word[0] == '-' || word[0] == '+' ? (word.size() > 1 ? word[1] : ' ') : word[0];
    const QByteArray lower = word.toLower();
    return (first >= '0' && first <= '9') || first == '.' || lower.contains("nan") ||
           lower.endsWith("inf") || lower.endsWith("infinity");
}

double ReadNumber(const Line& line, int index)
{
    const QByteArray& word = line.words[index];
    bool isNumber = false;
    const double number = word.toDouble(&isNumber);
    if (!isNumber && !LooksLikeNumber(word))
        line.Fail("expected a number, found \"" + word.toStdString() + "\"");
    if (!isNumber || !std::isfinite(number) ||
        std::abs(number) > static_cast<double>(std::numeric_limits<float>::max()))
        line.Fail("expected a finite number, found \"" + word.toStdString() + "\"");
    return number;
}

void CheckNumbers(const Line& line, int first, int count)
{
    if (line.words.size() - first != count)
        line.Fail("expected " + std::to_string(count) + " numbers, found " +
                  std::to_string(line.words.size() - first));
    for (int i = first; i < line.words.size(); ++i)
        ReadNumber(line, i);
}

int ReadSize(const Line& line, int largest)
{
    bool isNumber = false;
    const int size = line.words.size() == 2 ? line.words[1].toInt(&isNumber) : 0;
    if (!isNumber || size < 2 || size > largest)
        line.Fail("expected a size from 2 to " + std::to_string(largest) + ", found \"" +
                  line.words.mid(1).join(' ').toStdString() + "\"");
    return size;
}

/// The statements of a .cube file's header, and the number of rows so far.
class CubeState
{
public:
    void Visit(const Line& line)
    {
        if (LooksLikeNumber(line.words[0]))
            VisitRow(line);
        else
            VisitKeyword(line);
    }

    void Finish(const QString& path, qint64 lastLine) const
    {
        if (m_expected == 0)
            FailInLut(path, 0, "expected LUT_3D_SIZE or LUT_1D_SIZE, found none");
        for (std::size_t i = 0; i < 3; ++i)
            if (m_minimum[i] >= m_maximum[i])
                FailInLut(path, m_domainLine,
                          "expected DOMAIN_MAX above DOMAIN_MIN, found " + Text(m_maximum[i]) +
                              " and " + Text(m_minimum[i]));
        if (m_rows < m_expected)
            FailInLut(path, lastLine,
                      "expected " + std::to_string(m_expected) + " rows of numbers, found " +
                          std::to_string(m_rows) + ": the file is cut off");
    }

private:
    void VisitKeyword(const Line& line)
    {
        const QByteArray& keyword = line.words[0];
        if (keyword == "LUT_3D_SIZE")
            ReadTableSize(line, LookUpTable::Kind::Cube, m_hasCube);
        else if (keyword == "LUT_1D_SIZE")
            ReadTableSize(line, LookUpTable::Kind::Curve, m_hasCurve);
        else if (keyword == "DOMAIN_MIN" || keyword == "DOMAIN_MAX")
            ReadDomain(line, keyword == "DOMAIN_MIN" ? m_minimum : m_maximum);
        else if (keyword == "LUT_1D_INPUT_RANGE" || keyword == "LUT_3D_INPUT_RANGE")
            CheckRange(line);
    }

    void ReadTableSize(const Line& line, LookUpTable::Kind kind, bool& isKnown)
    {
        const std::string keyword = line.words[0].toStdString();
        if (m_rows > 0)
            line.Fail("expected every size before the first row, found " + keyword);
        if (isKnown)
            line.Fail("expected one " + keyword + ", found a second");
        isKnown = true;
        m_expected +=
            LookUpTable::GetCount(kind, ReadSize(line, LookUpTable::GetLargestSize(kind)));
    }

    void ReadDomain(const Line& line, std::array<double, 3>& limit)
    {
        CheckNumbers(line, 1, 3);
        for (int i = 0; i < 3; ++i)
            limit[static_cast<std::size_t>(i)] = ReadNumber(line, i + 1);
        m_domainLine = line.number;
    }

    static void CheckRange(const Line& line)
    {
        CheckNumbers(line, 1, 2);
        if (ReadNumber(line, 1) >= ReadNumber(line, 2))
            line.Fail("expected a smaller and a larger number, found \"" +
                      line.words.mid(1).join(' ').toStdString() + "\"");
    }

    void VisitRow(const Line& line)
    {
        if (m_expected == 0)
            line.Fail("expected LUT_3D_SIZE or LUT_1D_SIZE before the first row, found \"" +
                      line.words.join(' ').left(LongestQuote).toStdString() + "\"");
        CheckNumbers(line, 0, 3);
        if (++m_rows > m_expected)
            line.Fail("expected " + std::to_string(m_expected) + " rows of numbers, found more");
    }

    static std::string Text(double number) { return QByteArray::number(number).toStdString(); }

    std::array<double, 3> m_minimum = {0, 0, 0};
    std::array<double, 3> m_maximum = {1, 1, 1};
    qint64 m_domainLine = 0;
    std::size_t m_expected = 0;
    std::size_t m_rows = 0;
    bool m_hasCube = false;
    bool m_hasCurve = false;
};

/// Refuses byte order marks and lines that end in carriage returns alone: OpenColorIO misreads
/// them.
void CheckLines(const QString& path, const QByteArray& content)
{
    if (content.startsWith(ByteOrderMark))
        FailInLut(path, 1, "expected text without a byte order mark, found one at the beginning");
    if (content.contains('\r') && !content.contains('\n'))
        FailInLut(path, 1, "expected lines that end in a line feed, found carriage returns alone");
}

std::size_t GetCubeRoot(std::size_t rows)
{
    return static_cast<std::size_t>(std::llround(std::cbrt(static_cast<double>(rows))));
}

} // namespace

void TextTableCheck::CheckCube(const QString& path, const QByteArray& content)
{
    CheckLines(path, content);
    CubeState state;
    const qint64 last =
        ForEachLine(path, content, [&state](const Line& line) { state.Visit(line); });
    state.Finish(path, last);
}

// A row of more than three numbers is the list of positions along the axes; it comes first.
void TextTableCheck::CheckThreeDl(const QString& path, const QByteArray& content)
{
    CheckLines(path, content);
    std::size_t positions = 0, rows = 0;
    const auto largest = static_cast<std::size_t>(LookUpTable::LargestCube);
    const qint64 last = ForEachLine(path, content, [&](const Line& line) {
        if (!LooksLikeNumber(line.words[0]) || line.words[0].toUpper() == "3DMESH")
            return;
        const bool isList = line.words.size() > 3 && rows == 0;
        CheckNumbers(line, 0, isList ? line.words.size() : 3);
        if (isList)
            positions = static_cast<std::size_t>(line.words.size());
        else
            ++rows;
        if (positions > largest || rows > largest * largest * largest)
            line.Fail("expected a size from 2 to " + std::to_string(largest) + ", found more");
    });
    const std::size_t size = GetCubeRoot(rows);
    if (size < 2 || size * size * size != rows || (positions > 3 && positions != size))
        FailInLut(path, last,
                  "expected " +
                      (positions > 3
                           ? std::to_string(positions * positions * positions) + " rows of numbers"
                           : std::string("as many rows of numbers as a cube has entries")) +
                      ", found " + std::to_string(rows) + ": the file is cut off");
}

} // namespace LumetraHost
