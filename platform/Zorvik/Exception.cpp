// SPDX-License-Identifier: MIT
#include "Zorvik/Exception.h"

namespace Zorvik {

Exception::Exception(const std::string& description, const std::string& function,
                     const std::string& file, int line)
    : m_description(description), m_function(function), m_file(file), m_line(line)
{
}

Exception::~Exception() = default;

const char* Exception::what() const noexcept
{
    return m_description.c_str();
}

const std::string& Exception::GetDescription() const
{
    return m_description;
}

const std::string& Exception::GetFunction() const
{
    return m_function;
}

const std::string& Exception::GetFile() const
{
    return m_file;
}

int Exception::GetLine() const
{
    return m_line;
}

} // namespace Zorvik
