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

function withTimeout(promise, what) {
    let timer;
    const limit = new Promise((_, reject) => {
        timer = setTimeout(() => reject(new Error(`timed out waiting for ${what}`)), 10000);
    });
    return Promise.race([promise, limit]).finally(() => clearTimeout(timer));
}

for (const vsn of ['2.0.0', '1.0.0']) {
    test(`a task's insert, update and delete arrive as written (vsn ${vsn})`, async () => {
        const client = new RealtimeClient(`${url}/realtime/v1`, { params: { apikey: anonKey }, transport: WebSocket, vsn });
        // The session's token, not the anon key, decides which rows the subscription may see.
        await client.setAuth(token);
        try {
            const arrived = [];
            const next = (type) =>
                withTimeout(
                    new Promise((resolve) => {
                        const poll = setInterval(() => {
                            const index = arrived.findIndex((p) => p.eventType === type);
                            if (index >= 0) {
                                clearInterval(poll);
                                resolve(arrived.splice(index, 1)[0]);
                            }
                        }, 20);
                    }),
                    `a ${type}`,
                );
            const channel = client
                .channel(`tasks-${vsn}`)
                .on(
                    'postgres_changes',
                    { event: '*', schema: 'public', table: 'tasks', filter: `user_id=eq.${fixture.user}` },
                    (payload) => arrived.push(payload),
                );
            const status = await withTimeout(
                new Promise((resolve) => channel.subscribe((state) => state !== 'CLOSED' && resolve(state))),
                'the subscription',
            );
            assert.equal(status, 'SUBSCRIBED');

            const written = ok(
                await db.from('tasks').insert({ project_id: fixture.project, title: `Live ${vsn}` }).select().single(),
            );
            const inserted = await next('INSERT');
            assert.equal(inserted.table, 'tasks');
            assert.deepEqual(inserted.new, written);

            const updated = ok(
                await db.from('tasks').update({ status: 'in_progress' }).eq('id', written.id).select().single(),
            );
            assert.deepEqual((await next('UPDATE')).new, updated);

            ok(await db.from('tasks').delete().eq('id', written.id));
            const deleted = await next('DELETE');
            assert.equal(deleted.old.id, written.id);
            assert.deepEqual(deleted.new, {});
            assert.equal(await channel.unsubscribe(), 'ok');
        } finally {
            await client.disconnect();
        }
    });
}
