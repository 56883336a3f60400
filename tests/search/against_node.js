// SPDX-License-Identifier: MIT
// Reads [[pattern, flags, text], ...] and answers with the matches of each: [[index, length, group 1, ...], ...],
// or "invalid". An unset group is "".
const cases = JSON.parse(require('fs').readFileSync(0, 'utf8'));
const answer = cases.map(([pattern, flags, text]) => {
    let expression;
    try {
        expression = new RegExp(pattern, flags);
    } catch (error) {
        return 'invalid';
    }
    return Array.from(text.matchAll(expression),
                      match => [match.index, match[0].length, ...match.slice(1).map(group => group ?? '')]);
});
process.stdout.write(JSON.stringify(answer));
