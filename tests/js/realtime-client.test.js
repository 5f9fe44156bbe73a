// The official JavaScript realtime client, unchanged, against a running morvane-server. The C++
// runner (tests/server/realtime/tst_jsrealtime.cpp) starts the server, seeds a project and passes
// the address, the user's token and the ids through the environment. Node.js 20 has no WebSocket
// of its own, so the `ws` package is the transport.
import assert from 'node:assert/strict';
import { test } from 'node:test';

import { PostgrestClient } from '@supabase/postgrest-js';
import { RealtimeClient } from '@supabase/realtime-js';
import WebSocket from 'ws';

function required(name) {
    const value = process.env[name];
    if (!value) {
        throw new Error(`${name} is not set: run this through tst_jsrealtime, which starts the server`);
    }
    return value;
}

const url = required('MORVANE_URL');
const anonKey = required('MORVANE_ANON_KEY');
const token = required('MORVANE_TOKEN');
const fixture = JSON.parse(required('MORVANE_FIXTURE'));

const db = new PostgrestClient(`${url}/rest/v1`, {
    headers: { apikey: anonKey, Authorization: `Bearer ${token}` },
    schema: 'public',
});

function ok(result) {
    assert.equal(result.error, null, `unexpected error: ${JSON.stringify(result.error)}`);
    return result.data;
}

function withTimeout(promise, what, ms = 10000) {
    let timer;
    const limit = new Promise((_, reject) => {
        timer = setTimeout(() => reject(new Error(`timed out waiting for ${what}`)), ms);
    });
    return Promise.race([promise, limit]).finally(() => clearTimeout(timer));
}

// Subscribes to the user's tasks and answers the channel and a function that waits for the next
// change of a given kind.
async function subscribe(client, topic) {
    const waiting = [];
    const arrived = [];
    const channel = client.channel(topic).on(
        'postgres_changes',
        { event: '*', schema: 'public', table: 'tasks', filter: `user_id=eq.${fixture.user}` },
        (payload) => {
            const index = waiting.findIndex((w) => w.type === payload.eventType);
            if (index >= 0) {
                waiting.splice(index, 1)[0].resolve(payload);
            } else {
                arrived.push(payload);
            }
        },
    );
    const status = await withTimeout(
        new Promise((resolve) => {
            channel.subscribe((state, error) => {
                if (state !== 'SUBSCRIBED' && error) {
                    resolve(`${state}: ${error.message}`);
                } else if (state === 'SUBSCRIBED' || state === 'CHANNEL_ERROR' || state === 'TIMED_OUT') {
                    resolve(state);
                }
            });
        }),
        'the subscription',
    );
    assert.equal(status, 'SUBSCRIBED');
    const next = (type) => {
        const index = arrived.findIndex((p) => p.eventType === type);
        if (index >= 0) {
            return Promise.resolve(arrived.splice(index, 1)[0]);
        }
        return withTimeout(new Promise((resolve) => waiting.push({ type, resolve })), `a ${type}`);
    };
    return { channel, next };
}

for (const vsn of ['2.0.0', '1.0.0']) {
    test(`a task's insert, update and delete arrive as written (vsn ${vsn})`, async () => {
        const client = new RealtimeClient(`${url}/realtime/v1`, {
            params: { apikey: anonKey },
            transport: WebSocket,
            vsn,
        });
        // As the full client library does for a signed-in user: the session's token, not the
        // anon key, decides which rows the subscription may see.
        await client.setAuth(token);
        try {
            const { channel, next } = await subscribe(client, `tasks-${vsn}`);

            const written = ok(
                await db
                    .from('tasks')
                    .insert({ project_id: fixture.project, title: `Live ${vsn}`, user_id: fixture.user })
                    .select()
                    .single(),
            );
            const inserted = await next('INSERT');
            assert.equal(inserted.schema, 'public');
            assert.equal(inserted.table, 'tasks');
            assert.deepEqual(inserted.new, written);
            assert.deepEqual(inserted.errors, null);

            const updated = ok(
                await db
                    .from('tasks')
                    .update({ status: 'in_progress', started_at: '2025-03-01T09:00:00+00:00' })
                    .eq('id', written.id)
                    .select()
                    .single(),
            );
            const change = await next('UPDATE');
            assert.deepEqual(change.new, updated);
            assert.equal(change.old.id, written.id);

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

test("another user's task never arrives", async () => {
    const client = new RealtimeClient(`${url}/realtime/v1`, {
        params: { apikey: anonKey },
        transport: WebSocket,
    });
    await client.setAuth(token);
    try {
        const seen = [];
        const channel = client
            .channel('all-tasks')
            .on('postgres_changes', { event: 'INSERT', schema: 'public', table: 'tasks' }, (p) => seen.push(p.new.id));
        await withTimeout(
            new Promise((resolve) => channel.subscribe((state) => state === 'SUBSCRIBED' && resolve())),
            'the subscription',
        );
        // The stranger's row is written first, then one of the user's own; once that is here,
        // the stranger's would have been too.
        const stranger = await fetch(`${url}/rest/v1/tasks`, {
            method: 'POST',
            headers: {
                apikey: anonKey,
                Authorization: `Bearer ${required('MORVANE_STRANGER_TOKEN')}`,
                'Content-Type': 'application/json',
                Prefer: 'return=representation',
            },
            body: JSON.stringify({ project_id: fixture.strangerProject, title: 'Not for you', user_id: fixture.stranger }),
        });
        assert.equal(stranger.status, 201);
        const strangerId = (await stranger.json())[0].id;
        const own = ok(
            await db.from('tasks').insert({ project_id: fixture.project, title: 'Mine', user_id: fixture.user }).select().single(),
        );
        await withTimeout(
            new Promise((resolve) => {
                const poll = setInterval(() => seen.includes(own.id) && (clearInterval(poll), resolve()), 20);
            }),
            'the own row',
        );
        assert.ok(!seen.includes(strangerId));
    } finally {
        await client.disconnect();
    }
});
