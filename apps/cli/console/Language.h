// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

namespace LumetraCli {

/// The language of the program's texts.
class Language
{
public:
    /// Makes Text::tr(), and the texts that Qt makes about the command line, speak the user's
    /// language from now on, if it is one that the program has. Needs the application.
    static void Use();

    /// "de" or "en", by the variables LANGUAGE, LC_ALL, LC_MESSAGES and LANG, in the way of
    /// gettext: the first of LANGUAGE that the program speaks, unless the locale is "C", which is
    /// English.
    static QString Find();
};

} // namespace LumetraCli
