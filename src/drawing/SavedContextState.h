// A drawing step's Save and Restore as a scope.
#pragma once

#include <vantrel/drawing/DrawingContext.h>

namespace Vantrel {

// Save on construction and Restore on destruction, so that a drawing call
// that throws still leaves the context's state balanced.
class SavedContextState {
public:
    explicit SavedContextState(DrawingContext *context) : context(context) { context->Save(); }
    ~SavedContextState() { context->Restore(); }
    SavedContextState(SavedContextState const &) = delete;
    SavedContextState &operator=(SavedContextState const &) = delete;

private:
    DrawingContext *context;
};

} // namespace Vantrel
