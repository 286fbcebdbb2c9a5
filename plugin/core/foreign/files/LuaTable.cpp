// SPDX-License-Identifier: GPL-2.0-or-later
#include "core/foreign/files/LuaTable.h"

#include "core/foreign/files/ForeignFile.h"

#include <QRegularExpression>

#include <cctype>

namespace LumetraPlugin {
namespace {

/// The text that a program shows for "$$$/Key=Text": what follows the first "=".
QString WithoutKey(const QString& text)
{
    const int place = text.indexOf(QLatin1Char('='));
    return text.startsWith(QLatin1String("$$$/")) && place > 0 ? text.mid(place + 1) : text;
}

class Parser
{
public:
    Parser(const QString& path, const QByteArray& content) : m_path(path), m_content(content) {}

    LuaValue ParseFile()
    {
        SkipSpace();
        if (ReadWord().isEmpty())
            Fail(ForeignFile::tr("a table, \"s = { … }\""));
        Expect('=');
        if (Peek() != '{')
            Fail(QStringLiteral("\"{\""));
        LuaValue table = ParseTable(1);
        SkipSpace();
        if (!IsAtEnd())
            Fail(ForeignFile::tr("the end of the file"));
        return table;
    }

private:
    [[noreturn]] void Fail(const QString& expected) const
    {
        const QByteArray rest = m_content.mid(m_place, 20);
        const int end = rest.indexOf('\n');
        const QByteArray found = (end < 0 ? rest : rest.left(end)).trimmed();
        FailWith(ForeignFile::tr("expected %1, found %2")
                     .arg(expected, IsAtEnd()
                                        ? ForeignFile::tr("the end of the file")
                                        : QStringLiteral("\"%1\"").arg(QString::fromUtf8(found))));
    }
    [[noreturn]] void FailWith(const QString& message) const
    {
        ForeignFile::Fail(m_path, m_line, message);
    }

    bool IsAtEnd() const { return m_place >= m_content.size(); }
    char Peek() const { return IsAtEnd() ? '\0' : m_content[m_place]; }
    char Next()
    {
        const char c = Peek();
        m_line += c == '\n';
        ++m_place;
        return c;
    }
    bool IsNext(const char* text) const { return m_content.mid(m_place, 2) == text; }

    void SkipSpace()
    {
        while (!IsAtEnd()) {
            if (std::isspace(static_cast<unsigned char>(Peek())))
                Next();
            else if (IsNext("--"))
                SkipComment();
            else
                return;
        }
    }
    void SkipComment()
    {
        if (m_content.mid(m_place, 3) == "--[")
            Fail(ForeignFile::tr("a comment that ends with its line"));
        while (!IsAtEnd() && Peek() != '\n')
            Next();
    }
    bool Take(char c)
    {
        SkipSpace();
        if (Peek() != c)
            return false;
        Next();
        SkipSpace();
        return true;
    }
    void Expect(char c)
    {
        if (!Take(c))
            Fail(QStringLiteral("\"%1\"").arg(QLatin1Char(c)));
    }

    QString ReadWord()
    {
        const int start = m_place;
        while (std::isalnum(static_cast<unsigned char>(Peek())) || Peek() == '_')
            Next();
        return QString::fromLatin1(m_content.mid(start, m_place - start));
    }

    LuaValue ParseTable(int depth)
    {
        if (depth > LuaTable::DeepestNesting)
            FailWith(ForeignFile::tr("expected tables in at most 32 levels"));
        LuaValue table;
        table.isTable = true;
        Expect('{');
        while (!Take('}')) {
            if (++m_entries > LuaTable::MostEntries)
                FailWith(ForeignFile::tr("expected at most 100000 entries"));
            table.entries.push_back(ParseEntry(depth));
            if (!Take(',') && !Take(';') && Peek() != '}')
                Fail(ForeignFile::tr("\",\" or \"}\""));
        }
        return table;
    }

    LuaValue::Entry ParseEntry(int depth)
    {
        if (Peek() == '[')
            return ParseBracketEntry(depth);
        if (std::isalpha(static_cast<unsigned char>(Peek())) || Peek() == '_') {
            const int line = m_line;
            const int place = m_place;
            const QString key = ReadWord();
            SkipSpace();
            if (Take('='))
                return {key, ParseValue(depth)};
            m_line = line;
            m_place = place;
        }
        return {QString(), ParseValue(depth)};
    }

    LuaValue::Entry ParseBracketEntry(int depth)
    {
        Expect('[');
        const QString key = Peek() == '"' ? ReadString() : ReadNumber();
        Expect(']');
        Expect('=');
        return {key, ParseValue(depth)};
    }

    LuaValue ParseValue(int depth)
    {
        SkipSpace();
        LuaValue value;
        const char c = Peek();
        if (c == '{')
            return ParseTable(depth + 1);
        if (c == '"' || c == '\'')
            value.text = ReadString();
        else if (std::isdigit(static_cast<unsigned char>(c)) || c == '-' || c == '+' || c == '.')
            value.text = ReadNumber();
        else
            value.text = ReadWordValue();
        return value;
    }

    QString ReadWordValue()
    {
        const int place = m_place;
        const QString word = ReadWord();
        if (word == QLatin1String("true") || word == QLatin1String("false"))
            return word;
        if (word == QLatin1String("nil"))
            return {};
        SkipSpace();
        if ((word == QLatin1String("ZSTR") || word == QLatin1String("LOC")) &&
            (Peek() == '"' || Peek() == '\''))
            return WithoutKey(ReadString());
        m_place = place;
        Fail(ForeignFile::tr("a text, a number, true, false, nil or a table"));
    }

    QString ReadNumber()
    {
        static const QRegularExpression form(
            QStringLiteral("^[+-]?([0-9]+(\\.[0-9]*)?|\\.[0-9]+)([eE][+-]?[0-9]+)?$"));
        const int start = m_place;
        while (std::isalnum(static_cast<unsigned char>(Peek())) || Peek() == '.' || Peek() == '+' ||
               Peek() == '-')
            Next();
        const QString text = QString::fromLatin1(m_content.mid(start, m_place - start));
        if (form.match(text).hasMatch())
            return text;
        m_place = start;
        Fail(ForeignFile::tr("a number"));
    }

    QString ReadString()
    {
        const char quote = Next();
        QByteArray text;
        while (Peek() != quote) {
            if (IsAtEnd() || Peek() == '\n')
                FailWith(ForeignFile::tr("expected a text that ends in its line"));
            const char c = Next();
            text += c == '\\' ? ReadEscape() : QByteArray(1, c);
        }
        Next();
        return QString::fromUtf8(text);
    }

    QByteArray ReadEscape()
    {
        const char c = Next();
        if (std::isdigit(static_cast<unsigned char>(c)))
            return ReadDecimalEscape(c);
        switch (c) {
        case 'n':
        case '\n':
            return "\n";
        case 't':
            return "\t";
        case 'r':
            return "\r";
        case '"':
        case '\'':
        case '\\':
            return QByteArray(1, c);
        default:
            FailWith(ForeignFile::tr("expected a known character behind \"\\\""));
        }
    }

    /// A byte as up to three digits.
    QByteArray ReadDecimalEscape(char first)
    {
        int code = first - '0';
        for (int i = 0; i < 2 && std::isdigit(static_cast<unsigned char>(Peek())); ++i)
            code = 10 * code + (Next() - '0');
        if (code > 255)
            FailWith(ForeignFile::tr("expected a byte of at most 255 behind \"\\\""));
        return QByteArray(1, static_cast<char>(code));
    }

    const QString& m_path;
    const QByteArray& m_content;
    int m_place = 0;
    int m_line = 1;
    int m_entries = 0;
};

} // namespace

const LuaValue* LuaValue::Find(const char* key) const
{
    for (const Entry& entry : entries)
        if (entry.first == QLatin1String(key))
            return &entry.second;
    return nullptr;
}

QString LuaValue::GetText(const char* key) const
{
    const LuaValue* const value = Find(key);
    return value ? value->text : QString();
}

LuaValue LuaTable::Read(const QString& path, const QByteArray& content)
{
    return Parser(path, content).ParseFile();
}

} // namespace LumetraPlugin
