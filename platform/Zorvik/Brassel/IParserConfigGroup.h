// SPDX-License-Identifier: MIT
#pragma once

#include "Zorvik/Brassel/ISerializable.h"

#include <string>

namespace Zorvik::Brassel::Config {

/// Common base of all that a configuration parser fills.
class ZORVIKPLATFORM_EXPORT IParserConfigBase
{
public:
    virtual ~IParserConfigBase();
};

/// What the host's configuration parser drives while it reads a catalogue: the default sliders
/// first, then every group, then the user's stored data. Any pointer may be null.
class ZORVIKPLATFORM_EXPORT IParserConfigGroup : public virtual IParserConfigBase
{
public:
    virtual void ParseGroup(const std::string& groupName, const ConstCollectionPtr& items,
                            const ConstSerializerPtr& groupSettings) = 0;
    virtual void ParseAdditionalInfo(const ConstCollectionPtr& collection) = 0;
    virtual void ParseAdditionalInfo(const ConstSerializerPtr& serializer) = 0;

    ~IParserConfigGroup() override;
};

} // namespace Zorvik::Brassel::Config
