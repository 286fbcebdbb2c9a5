// SPDX-License-Identifier: MIT
#pragma once

#include "ZorvikPlatformExport.h"

#include <exception>
#include <string>

namespace Zorvik {

/// The platform's error says what went wrong and where in the sources it was noticed. For broken
/// data the description itself names the file, the place inside it and what was expected.
class ZORVIKPLATFORM_EXPORT Exception : public std::exception
{
public:
    /// `description` is the text for users and logs. The others name the place that throws:
    /// `function` is its full signature, `file` its source path relative to the source tree.
    Exception(const std::string& description, const std::string& function, const std::string& file,
              int line);
    Exception(const Exception&) = default;
    Exception& operator=(const Exception&) = default;
    ~Exception() override;

    /// Returns the description alone, without its origin. The text lives as long as the exception.
    const char* what() const noexcept override;

    /// Returns the text of what().
    const std::string& GetDescription() const;
    /// Returns the full signature of the operation that threw.
    const std::string& GetFunction() const;
    /// Returns the source path of that operation, relative to its source tree.
    const std::string& GetFile() const;
    /// Returns the line in GetFile(). Some operations give a fixed number instead, by which error
    /// reports are told apart.
    int GetLine() const;

private:
    std::string m_description;
    std::string m_function;
    std::string m_file;
    int m_line;
};

} // namespace Zorvik
