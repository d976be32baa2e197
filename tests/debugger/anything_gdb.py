# SPDX-License-Identifier: MIT
"""Has gdb show values of each type at a hundred places of the host's memory that is full of anything."""
import gdb

import ktqtbase_views

first = int(gdb.parse_and_eval("&anything").cast(gdb.lookup_type("long")))
shown = [gdb.Value(first + 8 * place).cast(gdb.lookup_type(name).pointer()).dereference()
         .format_string() for name in ktqtbase_views.VIEWS for place in range(100)]
print(f"{len(shown)} values, none longer than {max(map(len, shown))}")
