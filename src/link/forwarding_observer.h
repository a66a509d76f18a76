#pragma once

#include <utility>

#include "link/transfer_observer.h"

namespace rqm5 {

/// Passes everything on to another observer: the base of those that listen in or leave something out.
class ForwardingObserver : public TransferObserver
{
  public:
    explicit ForwardingObserver(TransferObserver& next) : next_(next) {}

    void ProgressStarted(int maximum) override { next_.ProgressStarted(maximum); }
    void ProgressMoved(int value, int row) override { next_.ProgressMoved(value, row); }
    void ProgressEnded() override { next_.ProgressEnded(); }
    void BlockRead(int address, const MemoryBlock& block) override { next_.BlockRead(address, block); }
    void BlockDone(int address, bool written) override { next_.BlockDone(address, written); }
    void BlockRepeated(int address) override { next_.BlockRepeated(address); }
    void GroupChosen(int selector) override { next_.GroupChosen(selector); }
    void Stored() override { next_.Stored(); }
    void Message(const Problem& problem) override { next_.Message(problem); }
    bool IsCancelled() override { return next_.IsCancelled(); }

  private:
    TransferObserver& next_;
};

/// Adds to every message what it means for the whole operation.
class AftermathObserver : public ForwardingObserver
{
  public:
    AftermathObserver(TransferObserver& next, rqm5::Message aftermath)
        : ForwardingObserver(next), aftermath_(std::move(aftermath))
    {
    }

    void Message(const Problem& problem) override
    {
        Problem told = problem;
        told.aftermath = aftermath_;
        ForwardingObserver::Message(told);
    }

  private:
    const rqm5::Message aftermath_;
};

}  // namespace rqm5
