// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "Zorvik/Brassel/IParserConfigGroup.h"
#include "Zorvik/Brassel/ISerializer.h"

#include <stdexcept>
#include <string>
#include <vector>

/// Notes the parser's calls, one line each. An element named `poison` makes it throw.
class RecordingTarget : public Zorvik::Brassel::Config::IParserConfigGroup
{
public:
    void ParseGroup(const std::string& groupName, const Zorvik::Brassel::ConstCollectionPtr& items,
                    const Zorvik::Brassel::ConstSerializerPtr& groupSettings) override
    {
        if (groupName == poison)
            throw std::runtime_error("poisoned\nbelow");
        std::string line = "group " + groupName + ":" + Names(items);
        if (groupSettings)
            line += " controller=" + groupSettings->Get("controller", "");
        calls.push_back(line);
    }

    void ParseAdditionalInfo(const Zorvik::Brassel::ConstCollectionPtr& sliders) override
    {
        calls.push_back("sliders:" + Names(sliders));
    }

    void ParseAdditionalInfo(const Zorvik::Brassel::ConstSerializerPtr& userData) override
    {
        calls.push_back("user data: " + userData->Get("name", "nothing"));
    }

    std::string poison;
    std::vector<std::string> calls;

private:
    std::string Names(const Zorvik::Brassel::ConstCollectionPtr& elements) const
    {
        std::string names;
        for (std::size_t i = 0; i < elements->GetCount(); ++i) {
            const auto element = elements->GetElement(i);
            const std::string name = element->Get("name", element->GetName());
            if (!poison.empty() && name == poison)
                throw std::invalid_argument("poisoned\ncall stack");
            names += " " + name;
        }
        return names;
    }
};
