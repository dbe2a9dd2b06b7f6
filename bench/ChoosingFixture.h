// ChoosingFixture.h: a loaded feed whose items store their texts as Foundation strings, and a session that chooses.
// Plain C++. Thread: main. Ownership: the fixture owns its session and its items.
#pragma once

#include <memory>

namespace Pelnar::Bench
{

class ChoosingFixture
{
public:
    /// Versions ascend from 4.0.1; every item is valid for the local version 4.0.
    explicit ChoosingFixture(int itemCount);
    ~ChoosingFixture();
    ChoosingFixture(ChoosingFixture const&) = delete;
    ChoosingFixture& operator=(ChoosingFixture const&) = delete;

    // The index of the chosen item; -1 if no item was chosen.
    int Choose();
    int ChoosePlainly();

private:
    struct Data;
    std::unique_ptr<Data> m_data;
};

} // namespace Pelnar::Bench
