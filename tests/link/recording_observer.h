#pragma once

#include <functional>
#include <set>
#include <utility>
#include <vector>

#include "link/transfer_observer.h"

namespace rqm5 {

/// Writes down what a transfer tells, and cancels it when it is told to.
struct RecordingObserver : TransferObserver
{
    void ProgressStarted(int maximum) override { maxima.push_back(maximum); }
    void ProgressMoved(int value, int row) override { moves.push_back({value, row}); }
    void ProgressEnded() override { ++ends; }
    void BlockDone(int address, bool isWritten) override
    {
        (isWritten ? written : read).insert(address);
        if (++done == changeAfter)
            afterBlock();
    }
    void BlockRepeated(int /*address*/) override { ++repeated; }
    void GroupChosen(int selector) override { groups.push_back(selector); }
    void Stored() override { ++stores; }
    void Message(const Problem& problem) override { problems.push_back(problem); }
    bool IsCancelled() override { return cancelled || done == cancelAfter; }

    std::vector<int> maxima, groups;
    std::set<int> read, written;  ///< addresses of blocks that were done
    std::vector<std::pair<int, int>> moves;
    std::vector<Problem> problems;
    int ends = 0;
    int repeated = 0;      ///< blocks that needed more than one attempt
    int stores = 0;        ///< parts of what was read that could be shown
    int done = 0;          ///< blocks
    int cancelAfter = -1;  ///< blocks
    int changeAfter = -1;  ///< blocks, after which the next is called
    std::function<void()> afterBlock;
    bool cancelled = false;
};

}  // namespace rqm5
