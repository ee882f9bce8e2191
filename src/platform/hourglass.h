// The pointer that asks a person to wait.
#pragma once

namespace lorvane {

class Hourglass {
public:
    virtual ~Hourglass() = default;

    /// Shows the hourglass, and takes it away again. Pairs may stand within each other.
    virtual void begin() = 0;
    virtual void end() = 0;
};

/// The hourglass shows while this lives, however its work ends. Without one nobody is waiting.
class Waiting {
public:
    explicit Waiting(Hourglass* hourglass) : hourglass_(hourglass) {
        if (hourglass_ != nullptr)
            hourglass_->begin();
    }
    ~Waiting() {
        if (hourglass_ != nullptr)
            hourglass_->end();
    }
    Waiting(const Waiting&) = delete;
    Waiting& operator=(const Waiting&) = delete;

private:
    Hourglass* hourglass_;
};

}  // namespace lorvane
