// Every operation the runner knows, gathered from the handler tables of each family.
#ifndef GOLDEN_HANDLERS_H
#define GOLDEN_HANDLERS_H

#include "exact_ops.h"
#include "function_ops.h"
#include "text_ops.h"

namespace golden {

template<class Big>
const HandlerMap & AllHandlers()
{
    static const HandlerMap all = [] {
        HandlerMap m;
        for (const HandlerMap * family :
             {&ExactOps<Big>::Table(), &FunctionOps<Big>::Table(), &TextOps<Big>::Table()})
            m.insert(family->begin(), family->end());
        return m;
    }();
    return all;
}

} // namespace golden

#endif
