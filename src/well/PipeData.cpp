// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "well/PipeData.h"

#include "well/PipeString.h"
#include "well/SortOrder.h"

#include <algorithm>

namespace {
PipeComponent ToComponent(Pipe const& pipe)
{
    return {pipe.od, pipe.id, pipe.weight, pipe.depth.Delta(), pipe.name};
}
} // namespace

QList<Pipe> PipeData::FindTubingAssembly_Depth_Sorted() const
{
    QList<Pipe> tubing;
    std::copy_if(pipes_.cbegin(), pipes_.cend(), std::back_inserter(tubing),
                 [](Pipe const& pipe) { return pipe.is_tubing; });
    std::stable_sort(tubing.begin(), tubing.end(), [](Pipe const& a, Pipe const& b) {
        return Quorrel::AscendingNanLast(a.depth, b.depth);
    });
    return tubing;
}

void ConvertPipeListToPipeStringVector(QList<Pipe> const& pipes, std::vector<PipeString>& strings)
{
    for (Pipe const& pipe : pipes) {
        if (!pipe.is_tubing) {
            strings.emplace_back(pipe.name, pipe.depth.upper, false,
                                 std::vector<PipeComponent>{ToComponent(pipe)});
        }
    }
    PipeData table;
    table.SetPipes_OD_Sorted(pipes);
    QList<Pipe> const tubing = table.FindTubingAssembly_Depth_Sorted();
    if (tubing.isEmpty()) {
        return;
    }
    std::vector<PipeComponent> components;
    components.reserve(tubing.size());
    std::transform(tubing.cbegin(), tubing.cend(), std::back_inserter(components), ToComponent);
    strings.emplace_back("Tubing", tubing.constLast().depth.upper, true, components);
}
