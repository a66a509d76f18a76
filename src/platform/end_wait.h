#pragma once

namespace rqm5 {

/// For a program that does nothing but wait for its end: Ctrl-C, a request to terminate and the end of the
/// terminal are kept from the moment it is made, in all threads that are made later, too.
class EndWait
{
  public:
    EndWait();

    /// Sleeps until one of them has come.
    void Wait() const;
};

}  // namespace rqm5
