// SPDX-License-Identifier: MIT
#pragma once

#include "ZorvikPlatformExport.h"

#include <exception>
#include <string>

namespace Zorvik {

/// The platform's error: what went wrong, and where in the sources it was noticed. For broken data
/// the description itself names the file, the place inside it and what was expected.
class ZORVIKPLATFORM_EXPORT Exception : public std::exception
{
public:
    Exception(const std::string& description, const std::string& function, const std::string& file,
              int line);
    Exception(const Exception&) = default;
    Exception& operator=(const Exception&) = default;
    ~Exception() override;

    /// The description alone.
    const char* what() const noexcept override;

    const std::string& GetDescription() const;
    /// Full signature of the operation that threw.
    const std::string& GetFunction() const;
    /// Source path, relative to its source tree.
    const std::string& GetFile() const;
    int GetLine() const;

private:
    std::string m_description;
    std::string m_function;
    std::string m_file;
    int m_line;
};

} // namespace Zorvik
