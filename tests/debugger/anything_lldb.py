# SPDX-License-Identifier: MIT
"""Has lldb show values of each type at a hundred places of the host's memory that is full of anything."""
import lldb

import ktqtbase_lldb
import ktqtbase_views


def __lldb_init_module(debugger, _):
    target = debugger.GetSelectedTarget()
    frame = target.GetProcess().GetSelectedThread().GetSelectedFrame()
    first = frame.FindVariable("anything").GetLoadAddress()
    shown = [ktqtbase_lldb.described(target, name, first + 8 * place).GetSummary()
             for name in ktqtbase_views.VIEWS for place in range(100)]
    print(f"{len(shown)} values, none longer than {max(map(len, shown))}")
