// The official REST client, unchanged, against morvane-server (started and seeded by
// tests/server/tst_jsclients.cpp). One path per kind of call: the server's rules are the C++
// suite's; this proves the client's requests and our answers fit each other (the realtime
// script writes through this client too).
import assert from 'node:assert/strict';
import { test } from 'node:test';

import { PostgrestClient } from '@supabase/postgrest-js';

const fixture = JSON.parse(process.env.MORVANE_FIXTURE);
// Set up as the full client library does for a signed-in user.
const db = new PostgrestClient(`${process.env.MORVANE_URL}/rest/v1`, {
    headers: { apikey: process.env.MORVANE_ANON_KEY, Authorization: `Bearer ${process.env.MORVANE_TOKEN}` },
    schema: 'public',
});

function ok(result) {
    assert.equal(result.error, null, `unexpected error: ${JSON.stringify(result.error)}`);
    return result.data;
}

test('a filtered, ordered select with nested embeds', async () => {
    const rows = ok(
        await db
            .from('time_entries')
            .select('id,ended_at,task:tasks(title,project:projects(name))')
            // 10:00 at +01:00 is 09:00 UTC: a "+" decoded as a space would move or break the bound.
            .gte('ended_at', '2025-03-01T10:00:00+01:00')
            .in('task_id', [fixture.design, fixture.build])
            .is('logged_by_user_id', null)
            .order('ended_at', { ascending: false }),
    );
    assert.deepEqual(
        rows.map((row) => [row.id, row.task.title, row.task.project.name]),
        [
            [fixture.later, 'Build', 'Website'],
            [fixture.designAtBound, 'Design', 'Website'],
        ],
    );
    assert.equal(new Date(rows[1].ended_at).getTime(), new Date('2025-03-01T09:00:00Z').getTime());
});

test('a procedure answers its scalar', async () => {
    const result = await db.rpc('next_invoice_number');
    assert.match(ok(result), /^\d{4}-0001$/);
    assert.equal(result.status, 200);
});

test('an error arrives with its SQLSTATE as the code', async () => {
    const result = await db.from('tasks').insert({ project_id: fixture.strangerProject, title: 'Sneaky' }).select();
    assert.equal(result.data, null);
    assert.equal(result.status, 403);
    assert.equal(result.error?.code, '42501', JSON.stringify(result.error));
    assert.ok(result.error.message.length > 0);
});
