#pragma once

#include <atomic>
#include <memory>

// Whether the machine has a network at all, as the operating system reports it. Readable from
// any thread; calls that wait for the network come back to it.
class Connectivity
{
public:
    enum class State { Unknown, Online, Offline };

    virtual ~Connectivity() = default;
    [[nodiscard]] virtual State state() const = 0;

    // The operating system's view (NetworkManager through QNetworkInformation where a backend
    // for it is installed; Unknown otherwise, which never holds a call back).
    static std::shared_ptr<Connectivity> system();
};

// A state that its owner sets by hand: for tools that already know, and for tests that need the
// network to drop and come back on a machine where it cannot.
class ManualConnectivity : public Connectivity
{
public:
    explicit ManualConnectivity(State state = State::Online)
        : m_state(state)
    {}

    [[nodiscard]] State state() const override { return m_state.load(); }
    void setState(State state) { m_state.store(state); }

private:
    std::atomic<State> m_state;
};
