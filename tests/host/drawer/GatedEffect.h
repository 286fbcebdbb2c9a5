// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "Zorvik/Brassel/ISerializer.h"
#include "Zorvik/Quindle/IEffectSettings.h"
#include "Zorvik/RefCounted.h"

#include <condition_variable>
#include <memory>
#include <mutex>
#include <string>
#include <thread>

namespace LumetraHost {

/// Where an effect is read by those who render it. Every other thread than the one that made the
/// gate waits there while it is closed.
class EffectGate
{
public:
    void Close() { SetOpen(false); }
    void Open() { SetOpen(true); }
    /// Lets one reading go on, and holds the next one.
    void LetOnePass()
    {
        const std::lock_guard lock(m_mutex);
        ++m_permits;
        m_changed.notify_all();
    }

    /// Until so many readings have come to the gate since the beginning.
    void WaitForReading(int count)
    {
        std::unique_lock lock(m_mutex);
        m_changed.wait(lock, [&] { return m_readings >= count; });
    }
    /// Readings by other threads since the beginning.
    int CountReadings()
    {
        const std::lock_guard lock(m_mutex);
        return m_readings;
    }
    /// Readings by the thread that made the gate.
    int CountOwnReadings()
    {
        const std::lock_guard lock(m_mutex);
        return m_ownReadings;
    }

    /// Called by the effect when it is read.
    void Pass()
    {
        std::unique_lock lock(m_mutex);
        if (std::this_thread::get_id() == m_owner) {
            ++m_ownReadings;
            return;
        }
        ++m_readings;
        m_changed.notify_all();
        m_changed.wait(lock, [this] { return m_isOpen || m_permits > 0; });
        m_permits -= m_isOpen ? 0 : 1;
    }

private:
    void SetOpen(bool isOpen)
    {
        const std::lock_guard lock(m_mutex);
        m_isOpen = isOpen;
        m_changed.notify_all();
    }

    const std::thread::id m_owner = std::this_thread::get_id();
    std::mutex m_mutex;
    std::condition_variable m_changed;
    bool m_isOpen = true;
    int m_permits = 0;
    int m_readings = 0;
    int m_ownReadings = 0;
};

using EffectGatePtr = std::shared_ptr<EffectGate>;

/// An exposure whose number passes a gate whenever it is read: a rendering that has begun can be
/// held, and counted. A renderer reads it once for each picture, an incremental one more often.
/// Copies share the gate.
class GatedEffect : public Zorvik::RefCounted<Zorvik::Quindle::IEffectSettings>
{
public:
    GatedEffect(double stops, const EffectGatePtr& gate) : m_stops(stops), m_gate(gate) {}

    const std::string& GetEffectID() const override
    {
        static const std::string id = "exposure";
        return id;
    }
    Zorvik::Quindle::EffectPtr Clone() const override { return new GatedEffect(m_stops, m_gate); }
    bool HasParameter(const std::string& name) const override { return name == "stops"; }
    double GetParameter(const std::string&) const override
    {
        m_gate->Pass();
        return m_stops;
    }
    void SetParameter(const std::string&, double value) override { m_stops = value; }
    void Serialize(const Zorvik::Brassel::SerializerPtr&) const override {}
    void Deserialize(const Zorvik::Brassel::ConstSerializerPtr&) override {}

private:
    double m_stops;
    EffectGatePtr m_gate;
};

} // namespace LumetraHost
