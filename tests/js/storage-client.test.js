// The official JavaScript storage client, unchanged, against a running morvane-server. The C++
// runner (tests/server/tst_jsstorage.cpp) starts the server, makes the users and passes the address,
// the signed-in user's token and the ids through the environment.
import assert from 'node:assert/strict';
import { test } from 'node:test';

import { StorageClient } from '@supabase/storage-js';

function required(name) {
    const value = process.env[name];
    if (!value) {
        throw new Error(`${name} is not set: run this through tst_jsstorage, which starts the server`);
    }
    return value;
}

const fixture = JSON.parse(required('MORVANE_FIXTURE'));
const url = required('MORVANE_URL');

// Set up as the full client library does for a signed-in user.
const storage = new StorageClient(`${url}/storage/v1`, {
    apikey: required('MORVANE_ANON_KEY'),
    Authorization: `Bearer ${required('MORVANE_TOKEN')}`,
});
const bucket = storage.from('invoice-templates');
const mine = (name) => `${fixture.user}/${name}`;

function ok(result) {
    assert.equal(result.error, null, `unexpected error: ${JSON.stringify(result.error)}`);
    return result.data;
}

async function textOf(path) {
    const blob = ok(await bucket.download(path));
    return { text: await blob.text(), type: blob.type };
}

test('a Buffer goes up as the raw body with its content type and comes back the same', async () => {
    const pdf = Buffer.concat([Buffer.from('%PDF-1.7\n'), Buffer.alloc(2048, 0), Buffer.from('\n%%EOF\n')]);
    const data = ok(await bucket.upload(mine('buffers/invoice.pdf'), pdf, { contentType: 'application/pdf' }));
    assert.equal(data.path, mine('buffers/invoice.pdf'));
    assert.equal(data.fullPath, `invoice-templates/${mine('buffers/invoice.pdf')}`);
    assert.match(data.id, /^[0-9a-f-]{36}$/);

    const blob = ok(await bucket.download(mine('buffers/invoice.pdf')));
    assert.equal(blob.type, 'application/pdf');
    assert.deepEqual(Buffer.from(await blob.arrayBuffer()), pdf);
});

test('a Blob goes up as a form and keeps its type', async () => {
    const blob = new Blob(['<svg xmlns="http://www.w3.org/2000/svg"/>'], { type: 'image/svg+xml' });
    ok(await bucket.upload(mine('blobs/logo.svg'), blob, { cacheControl: '60' }));
    const back = await textOf(mine('blobs/logo.svg'));
    assert.deepEqual(back, { text: '<svg xmlns="http://www.w3.org/2000/svg"/>', type: 'image/svg+xml' });
});

test('a second upload is refused unless it upserts, and an upsert replaces content and type', async () => {
    const path = mine('upserts/note.txt');
    ok(await bucket.upload(path, Buffer.from('first'), { contentType: 'text/plain' }));

    const refused = await bucket.upload(path, Buffer.from('second'), { contentType: 'text/plain' });
    assert.equal(refused.data, null);
    assert.equal(refused.error.status, 400);
    assert.equal(refused.error.statusCode, '409');
    assert.equal(refused.error.message, 'The resource already exists');
    assert.equal((await textOf(path)).text, 'first');

    ok(await bucket.upload(path, Buffer.from('{"third":true}'), { contentType: 'application/json', upsert: true }));
    assert.deepEqual(await textOf(path), { text: '{"third":true}', type: 'application/json' });

    // update() replaces what exists and nothing else.
    ok(await bucket.update(path, Buffer.from('fourth'), { contentType: 'text/plain' }));
    assert.equal((await textOf(path)).text, 'fourth');
    const missing = await bucket.update(mine('upserts/none.txt'), Buffer.from('x'));
    assert.equal(missing.error.statusCode, '404');
});

test('listing shows one level of the folder, sorted and paged', async () => {
    for (const name of ['b.txt', 'a.txt', 'c.txt', 'sub/d.txt']) {
        ok(await bucket.upload(mine(`listing/${name}`), Buffer.from(name), { contentType: 'text/plain' }));
    }
    const all = ok(await bucket.list(mine('listing')));
    assert.deepEqual(
        all.map((entry) => [entry.name, entry.id === null]),
        [
            ['a.txt', false],
            ['b.txt', false],
            ['c.txt', false],
            ['sub', true],
        ],
    );
    assert.equal(all[0].metadata.size, 5);
    assert.equal(all[0].metadata.mimetype, 'text/plain');

    const page = ok(
        await bucket.list(mine('listing'), { limit: 2, offset: 1, sortBy: { column: 'name', order: 'desc' } }),
    );
    assert.deepEqual(
        page.map((entry) => entry.name),
        ['c.txt', 'b.txt'],
    );
    const found = ok(await bucket.list(mine('listing'), { search: 'b' }));
    assert.deepEqual(
        found.map((entry) => entry.name),
        ['b.txt'],
    );
});

test('a signed URL serves the object without any token, and only that object', async () => {
    const path = mine('signed/Factuur 2025-0001.pdf');
    ok(await bucket.upload(path, Buffer.from('%PDF signed'), { contentType: 'application/pdf' }));

    const { signedUrl } = ok(await bucket.createSignedUrl(path, 60));
    assert.ok(signedUrl.startsWith(`${url}/storage/v1/object/sign/invoice-templates/`), signedUrl);
    const served = await fetch(signedUrl);
    assert.equal(served.status, 200);
    assert.equal(served.headers.get('content-type'), 'application/pdf');
    assert.equal(await served.text(), '%PDF signed');

    const token = new URL(signedUrl).searchParams.get('token');
    const elsewhere = await fetch(
        `${url}/storage/v1/object/sign/invoice-templates/${mine('signed/other.pdf')}?token=${token}`,
    );
    assert.equal(elsewhere.status, 400);
    assert.equal((await elsewhere.json()).code, 'InvalidSignature');
});

test('another user\'s folder is out of reach', async () => {
    const planted = await bucket.upload(`${fixture.otherUser}/planted.txt`, Buffer.from('x'));
    assert.equal(planted.error.statusCode, '403');
    assert.equal(planted.error.message, 'new row violates row-level security policy');

    const theirs = await bucket.download(fixture.otherUsersObject);
    assert.equal(theirs.error.statusCode, '404');
    const signed = await bucket.createSignedUrl(fixture.otherUsersObject, 60);
    assert.equal(signed.error.statusCode, '404');
    assert.deepEqual(ok(await bucket.remove([fixture.otherUsersObject])), []);
    assert.deepEqual(ok(await bucket.list(fixture.otherUser)), []);
});

test('remove deletes several objects and answers what went', async () => {
    const paths = [mine('removing/one.txt'), mine('removing/two.txt')];
    for (const path of paths) {
        ok(await bucket.upload(path, Buffer.from('bye'), { contentType: 'text/plain' }));
    }
    const removed = ok(await bucket.remove([...paths, mine('removing/never-was.txt')]));
    assert.deepEqual(removed.map((entry) => entry.name).sort(), paths);

    const gone = await bucket.download(paths[0]);
    assert.equal(gone.error.statusCode, '404');
    assert.equal((await bucket.exists(paths[1])).data, false);
    assert.equal((await bucket.exists(mine('buffers/invoice.pdf'))).data, true);
    assert.deepEqual(ok(await bucket.list(mine('removing'))), []);
});

test('buckets are listed and looked up', async () => {
    const buckets = ok(await storage.listBuckets());
    assert.ok(buckets.some((entry) => entry.id === 'invoice-templates'));
    const one = ok(await storage.getBucket('invoice-templates'));
    assert.equal(one.public, false);
    const missing = await storage.getBucket('no-such-bucket');
    assert.equal(missing.error.statusCode, '404');
    assert.equal(missing.error.message, 'Bucket not found');
});
