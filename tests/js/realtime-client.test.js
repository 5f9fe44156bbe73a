// The official realtime client, unchanged, against morvane-server (started and seeded by
// tests/server/tst_jsclients.cpp), in both frame forms. Node.js 20 has no WebSocket of its own,
// so the `ws` package is the transport.
import assert from 'node:assert/strict';
import { test } from 'node:test';

import { PostgrestClient } from '@supabase/postgrest-js';
import { RealtimeClient } from '@supabase/realtime-js';
import WebSocket from 'ws';

const url = process.env.MORVANE_URL;
const anonKey = process.env.MORVANE_ANON_KEY;
const token = process.env.MORVANE_TOKEN;
const fixture = JSON.parse(process.env.MORVANE_FIXTURE);
const db = new PostgrestClient(`${url}/rest/v1`, {
    headers: { apikey: anonKey, Authorization: `Bearer ${token}` },
    schema: 'public',
});

function ok(result) {
    assert.equal(result.error, null, `unexpected error: ${JSON.stringify(result.error)}`);
    return result.data;
}

for (const vsn of ['2.0.0', '1.0.0']) {
    test(`a task's insert, update and delete arrive as written (vsn ${vsn})`, { timeout: 20000 }, async () => {
        const client = new RealtimeClient(`${url}/realtime/v1`, { params: { apikey: anonKey }, transport: WebSocket, vsn });
        // The session's token, not the anon key, decides which rows the subscription may see.
        await client.setAuth(token);
        try {
            // Each wait is set up before the write, so that a change arriving first is not lost.
            const waiting = [];
            const next = () => new Promise((resolve) => waiting.push(resolve));
            const channel = client
                .channel(`tasks-${vsn}`)
                .on(
                    'postgres_changes',
                    { event: '*', schema: 'public', table: 'tasks', filter: `user_id=eq.${fixture.user}` },
                    (payload) => waiting.shift()?.(payload),
                );
            const status = new Promise((resolve) => channel.subscribe((state) => state !== 'CLOSED' && resolve(state)));
            assert.equal(await status, 'SUBSCRIBED');

            let change = next();
            const written = ok(
                await db.from('tasks').insert({ project_id: fixture.project, title: `Live ${vsn}` }).select().single(),
            );
            const inserted = await change;
            assert.equal(inserted.eventType, 'INSERT');
            assert.equal(inserted.table, 'tasks');
            assert.deepEqual(inserted.new, written);

            change = next();
            const updated = ok(
                await db.from('tasks').update({ status: 'in_progress' }).eq('id', written.id).select().single(),
            );
            assert.deepEqual((await change).new, updated);

            change = next();
            ok(await db.from('tasks').delete().eq('id', written.id));
            const deleted = await change;
            assert.equal(deleted.old.id, written.id);
            assert.deepEqual(deleted.new, {});
            assert.equal(await channel.unsubscribe(), 'ok');
        } finally {
            await client.disconnect();
        }
    });
}
