// The official JavaScript REST client, unchanged, against a running morvane-server. The C++ runner
// (tests/server/tst_jsclient.cpp) starts the server, seeds the rows described in MORVANE_FIXTURE
// and passes the address and tokens through the environment.
import assert from 'node:assert/strict';
import { randomUUID } from 'node:crypto';
import { test } from 'node:test';

import { PostgrestClient } from '@supabase/postgrest-js';

function required(name) {
    const value = process.env[name];
    if (!value) {
        throw new Error(`${name} is not set: run this through tst_jsclient, which starts the server`);
    }
    return value;
}

const fixture = JSON.parse(required('MORVANE_FIXTURE'));
const anonKey = required('MORVANE_ANON_KEY');

// Configured the way the full JavaScript client library sets it up for a signed-in user: the anon
// key as apikey, the session's token as bearer, the public schema named on every request.
const db = new PostgrestClient(`${required('MORVANE_URL')}/rest/v1`, {
    headers: { apikey: anonKey, Authorization: `Bearer ${required('MORVANE_TOKEN')}` },
    schema: 'public',
});

// A failed call shows the server's error, not just "expected null".
function ok(result) {
    assert.equal(result.error, null, `unexpected error: ${JSON.stringify(result.error)}`);
    return result.data;
}

const instant = (text) => new Date(text).getTime();

test('time entries of some tasks since a local time, newest first', async () => {
    const { data, error, status } = await db
        .from('time_entries')
        .select('id,task_id,ended_at')
        .eq('user_id', fixture.user)
        // 10:00 at +01:00 is 09:00 UTC: an entry ending exactly then counts, one ending a second
        // earlier does not. A lost "+" (decoded as a space) would move or break the bound.
        .gte('ended_at', '2025-03-01T10:00:00+01:00')
        .in('task_id', [fixture.tasks.design, fixture.tasks.build, fixture.strangerTask])
        .is('logged_by_user_id', null)
        .order('ended_at', { ascending: false })
        .order('id', { ascending: true });
    assert.equal(error, null, JSON.stringify(error));
    assert.equal(status, 200);
    const e = fixture.entries;
    // Two entries end at 10:00 UTC: the second order term decides between them.
    assert.deepEqual(data.map((row) => row.id), [e.buildEarly, e.buildLate, e.designAtBound]);
    assert.deepEqual(
        data.map((row) => instant(row.ended_at)),
        [instant('2025-03-01T10:00:00Z'), instant('2025-03-01T10:00:00Z'), instant('2025-03-01T09:00:00Z')],
    );
    assert.deepEqual(data.map((row) => row.task_id), [fixture.tasks.build, fixture.tasks.build, fixture.tasks.design]);
});

test('paging through tasks with an exact count', async (t) => {
    // The website project's five tasks, by title: Build, Deploy, Design, Review, Test.
    const pages = [
        { name: 'first page', from: 0, to: 1, titles: ['Build', 'Deploy'], status: 206 },
        { name: 'middle page', from: 2, to: 3, titles: ['Design', 'Review'], status: 206 },
        { name: 'last page is short', from: 4, to: 9, titles: ['Test'], status: 206 },
        {
            name: 'one page holds everything',
            from: 0,
            to: 4,
            titles: ['Build', 'Deploy', 'Design', 'Review', 'Test'],
            status: 200,
        },
    ];
    for (const page of pages) {
        await t.test(page.name, async () => {
            const result = await db
                .from('tasks')
                .select('title', { count: 'exact' })
                .eq('project_id', fixture.projects.website)
                .order('title')
                .range(page.from, page.to);
            assert.deepEqual(ok(result).map((row) => row.title), page.titles);
            assert.equal(result.count, 5);
            assert.equal(result.status, page.status);
        });
    }

    await t.test('past the end is an error', async () => {
        const { data, error, status } = await db
            .from('tasks')
            .select('title', { count: 'exact' })
            .eq('project_id', fixture.projects.website)
            .range(5, 6);
        assert.equal(data, null);
        assert.equal(status, 416);
        assert.equal(error.code, 'PGRST103');
    });
});

test('invoice links with their invoice, entry and task embedded', async () => {
    const rows = ok(
        await db
            .from('invoice_entries')
            .select(
                'id,time_entry_id,invoice:invoices(status),entry:time_entries(task_id,task:tasks(project_id,billing))',
            )
            .eq('invoice_id', fixture.invoice),
    );
    assert.deepEqual(rows, [
        {
            id: fixture.invoiceEntry,
            time_entry_id: fixture.entries.designEarly,
            invoice: { status: 'sent' },
            entry: {
                task_id: fixture.tasks.design,
                task: { project_id: fixture.projects.website, billing: { model: 'hourly', rate: 85 } },
            },
        },
    ]);
});

test('insert answers the rows with the defaults the database filled in', async () => {
    const created = ok(
        await db
            .from('tasks')
            .insert({ project_id: fixture.projects.logo, title: 'Colour study', due_date: '2025-04-01' })
            .select(),
    );
    assert.equal(created.length, 1);
    const [task] = created;
    assert.match(task.id, /^[0-9a-f-]{36}$/);
    assert.equal(task.user_id, fixture.user);
    assert.equal(task.title, 'Colour study');
    assert.equal(task.status, 'not_started');
    assert.equal(task.priority, 'medium');
    assert.equal(task.time_spent_seconds, 0);
    assert.equal(task.due_date, '2025-04-01');

    // Rows with different keys: the client names the columns, and a key one row lacks takes the
    // column's default rather than NULL (which the NOT NULL column would refuse).
    const bulk = ok(
        await db
            .from('tasks')
            .insert(
                [
                    { project_id: fixture.projects.logo, title: 'Kerning', priority: 'high' },
                    { project_id: fixture.projects.logo, title: 'Print proof' },
                ],
                { defaultToNull: false },
            )
            .select('title,priority'),
    );
    assert.deepEqual(bulk, [
        { title: 'Kerning', priority: 'high' },
        { title: 'Print proof', priority: 'medium' },
    ]);
});

test('update answers the changed rows, and [] when the filter matches none', async () => {
    const [task] = ok(
        await db.from('tasks').insert({ project_id: fixture.projects.logo, title: 'Mock-up' }).select('id'),
    );
    const changed = ok(
        await db.from('tasks').update({ status: 'in_progress' }).eq('id', task.id).select('id,status,title'),
    );
    assert.deepEqual(changed, [{ id: task.id, status: 'in_progress', title: 'Mock-up' }]);

    const none = await db.from('tasks').update({ status: 'completed' }).eq('id', randomUUID()).select();
    assert.deepEqual(ok(none), []);
    assert.equal(none.status, 200);

    // Another user's task is outside the filter as far as this caller can see.
    const stranger = await db.from('tasks').update({ title: 'Taken over' }).eq('id', fixture.strangerTask).select();
    assert.deepEqual(ok(stranger), []);
});

test('upsert merges on the key and inserts the rest', async () => {
    const [draft] = ok(
        await db.from('tasks').insert({ project_id: fixture.projects.logo, title: 'Draft' }).select('id'),
    );
    const fresh = randomUUID();
    const rows = ok(
        await db
            .from('tasks')
            .upsert([
                { id: draft.id, project_id: fixture.projects.logo, title: 'Final' },
                { id: fresh, project_id: fixture.projects.logo, title: 'Extra' },
            ])
            .select('id,title'),
    );
    assert.deepEqual(
        rows.sort((a, b) => a.title.localeCompare(b.title)),
        [
            { id: fresh, title: 'Extra' },
            { id: draft.id, title: 'Final' },
        ],
    );
    const stored = ok(await db.from('tasks').select('title').in('id', [draft.id, fresh]).order('title'));
    assert.deepEqual(stored, [{ title: 'Extra' }, { title: 'Final' }]);
});

test('a timer stopped on two devices is logged once', async () => {
    // The same run as a seeded entry, and a new one: only the new one is written.
    const run = (started, ended) => ({
        task_id: fixture.tasks.build,
        project_id: fixture.projects.website,
        started_at: started,
        ended_at: ended,
        duration_seconds: (instant(ended) - instant(started)) / 1000,
    });
    const written = ok(
        await db
            .from('time_entries')
            .upsert(
                [
                    run('2025-03-01T09:00:00Z', '2025-03-01T10:00:00Z'),
                    run('2025-03-02T09:00:00Z', '2025-03-02T09:45:00Z'),
                ],
                { onConflict: 'task_id,started_at,ended_at', ignoreDuplicates: true },
            )
            .select('started_at,duration_seconds'),
    );
    assert.equal(written.length, 1);
    assert.equal(instant(written[0].started_at), instant('2025-03-02T09:00:00Z'));
    assert.equal(written[0].duration_seconds, 2700);
});

test('delete, with and without the deleted rows in the answer', async () => {
    const created = ok(
        await db
            .from('tasks')
            .insert([
                { project_id: fixture.projects.logo, title: 'Temp A' },
                { project_id: fixture.projects.logo, title: 'Temp B' },
            ])
            .select('id,title'),
    );
    const [a, b] = created;
    const deleted = ok(await db.from('tasks').delete().eq('id', a.id).select('id,title'));
    assert.deepEqual(deleted, [{ id: a.id, title: 'Temp A' }]);

    const quiet = await db.from('tasks').delete().eq('id', b.id);
    assert.equal(quiet.error, null);
    assert.equal(quiet.status, 204);
    assert.equal(quiet.data, null);

    assert.deepEqual(ok(await db.from('tasks').select('id').in('id', [a.id, b.id])), []);
});

test('single() takes exactly one row', async (t) => {
    await t.test('one row arrives as an object', async () => {
        const task = ok(
            await db
                .from('tasks')
                .select('title,status')
                .eq('project_id', fixture.projects.website)
                .eq('title', 'Design')
                .single(),
        );
        assert.deepEqual(task, { title: 'Design', status: 'in_progress' });
    });

    // Review and Test are the website's completed tasks.
    for (const [name, column, value, rows] of [
        ['two rows', 'status', 'completed', 2],
        ['no row', 'title', 'No such task', 0],
    ]) {
        await t.test(`${name} is an error`, async () => {
            const result = await db
                .from('tasks')
                .select('title')
                .eq('project_id', fixture.projects.website)
                .eq(column, value)
                .single();
            assert.equal(result.data, null);
            assert.equal(result.status, 406);
            assert.equal(result.error?.code, 'PGRST116', JSON.stringify(result.error));
            assert.match(result.error.details, new RegExp(`\\b${rows} rows`));
        });
    }
});

test('invoice numbers come from the procedure, skipping the one typed in by hand', async () => {
    const [seeded] = ok(await db.from('invoices').select('number').eq('id', fixture.invoice));
    const year = seeded.number.slice(0, 4);
    assert.equal(seeded.number, `${year}-0001`);

    const first = await db.rpc('next_invoice_number');
    assert.equal(ok(first), `${year}-0002`);
    assert.equal(first.status, 200);
    assert.equal(ok(await db.rpc('next_invoice_number')), `${year}-0003`);
});

test('database errors arrive with their SQLSTATE as the code', async (t) => {
    const cases = [
        {
            name: 'blank title breaks a check constraint',
            table: 'tasks',
            row: { project_id: fixture.projects.logo, title: '   ' },
            status: 400,
            code: '23514',
        },
        {
            name: 'an entry ending before it starts',
            table: 'time_entries',
            row: {
                task_id: fixture.tasks.build,
                project_id: fixture.projects.website,
                started_at: '2025-03-05T10:00:00Z',
                ended_at: '2025-03-05T09:00:00Z',
                duration_seconds: 0,
            },
            status: 400,
            code: '23514',
        },
        {
            name: 'the same run logged twice',
            table: 'time_entries',
            row: {
                task_id: fixture.tasks.build,
                project_id: fixture.projects.website,
                started_at: '2025-03-01T09:00:00Z',
                ended_at: '2025-03-01T10:00:00Z',
                duration_seconds: 3600,
            },
            status: 409,
            code: '23505',
        },
        {
            name: "a task in someone else's project",
            table: 'tasks',
            row: { project_id: fixture.strangerProject, title: 'Sneaky' },
            status: 403,
            code: '42501',
        },
    ];
    for (const c of cases) {
        await t.test(c.name, async () => {
            const result = await db.from(c.table).insert(c.row).select();
            assert.equal(result.data, null);
            assert.equal(result.status, c.status);
            assert.equal(result.error?.code, c.code, JSON.stringify(result.error));
            assert.ok(result.error.message.length > 0);
        });
    }
});

test('a schema the server does not expose is refused, not answered from public', async () => {
    const result = await db.schema('app').from('tasks').select('id').limit(1);
    assert.equal(result.data, null);
    assert.equal(result.status, 406);
    assert.equal(result.error?.code, 'PGRST106', JSON.stringify(result.error));
    assert.match(result.error.hint, /\bpublic\b/);
});
