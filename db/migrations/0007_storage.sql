-- File storage: buckets, the objects in them, and who may touch which object.
--
-- The bytes live outside the database (morvane-server keeps them under its data folder, one file per
-- written version); a row here is the object's name, owner and metadata, and `version` names the file
-- that holds its current content. A hosted backend of this kind already has both tables and the
-- helper functions (owned by its storage service's role), so they are only created when missing;
-- the policies and the application's bucket are ours on either side.

do $do$
begin
    if to_regclass('storage.buckets') is null then
        create table storage.buckets (
            id text primary key check (id ~ '^[A-Za-z0-9_.-]{1,100}$' and id not in ('.', '..')),
            name text not null unique,
            owner uuid,
            public boolean not null default false,
            file_size_limit bigint check (file_size_limit > 0),
            allowed_mime_types text[],
            created_at timestamptz not null default now(),
            updated_at timestamptz not null default now()
        );
        alter table storage.buckets enable row level security;
        revoke all on storage.buckets from public, anon;
        grant select on storage.buckets to authenticated;
        grant all on storage.buckets to service_role;
    end if;

    if to_regclass('storage.objects') is null then
        create table storage.objects (
            id uuid primary key default gen_random_uuid(),
            bucket_id text not null references storage.buckets (id),
            name text not null check (name <> ''),
            owner uuid default auth.uid(),
            created_at timestamptz not null default now(),
            updated_at timestamptz not null default now(),
            last_accessed_at timestamptz not null default now(),
            metadata jsonb,
            version text not null,
            path_tokens text[] generated always as (string_to_array(name, '/')) stored,
            unique (bucket_id, name)
        );
        -- Account deletion looks objects up by owner; listing goes through (bucket_id, name).
        create index objects_owner_idx on storage.objects (owner);
        alter table storage.objects enable row level security;
        revoke all on storage.objects from public, anon;
        grant select, insert, update, delete on storage.objects to authenticated;
        grant all on storage.objects to service_role;
    end if;

    -- "invoices/2025/march.pdf": folders {invoices,2025}, file name march.pdf, extension pdf.
    if to_regprocedure('storage.foldername(text)') is null then
        create function storage.foldername(name text) returns text[]
            language sql immutable
        as $fn$
            select (string_to_array(name, '/'))[1:cardinality(string_to_array(name, '/')) - 1]
        $fn$;
    end if;
    if to_regprocedure('storage.filename(text)') is null then
        create function storage.filename(name text) returns text
            language sql immutable
        as $fn$
            select (string_to_array(name, '/'))[cardinality(string_to_array(name, '/'))]
        $fn$;
    end if;
    if to_regprocedure('storage.extension(text)') is null then
        create function storage.extension(name text) returns text
            language sql immutable
        as $fn$
            select case when strpos(storage.filename(name), '.') > 0
                        then (regexp_match(storage.filename(name), '\.([^.]*)$'))[1]
                        else '' end
        $fn$;
    end if;
end
$do$;

grant usage on schema storage to authenticated, service_role;

-- Bucket settings (size limit, allowed types) are no secret, and an upload has to read them.
-- Objects: in every bucket, a user's files live under a first folder named after the user's id,
-- so "<uid>/invoices/2025-0001.pdf" is theirs and nobody else's.
do $do$
begin
    if not exists (select 1 from pg_policies where schemaname = 'storage' and tablename = 'buckets'
                   and policyname = 'signed-in users read buckets') then
        create policy "signed-in users read buckets" on storage.buckets for select to authenticated
            using (true);
    end if;
    if not exists (select 1 from pg_policies where schemaname = 'storage' and tablename = 'objects'
                   and policyname = 'users read objects in their own folder') then
        create policy "users read objects in their own folder" on storage.objects for select to authenticated
            using ((storage.foldername(name))[1] = (select auth.uid())::text);
    end if;
    if not exists (select 1 from pg_policies where schemaname = 'storage' and tablename = 'objects'
                   and policyname = 'users add objects to their own folder') then
        create policy "users add objects to their own folder" on storage.objects for insert to authenticated
            with check ((storage.foldername(name))[1] = (select auth.uid())::text
                        and owner = (select auth.uid()));
    end if;
    if not exists (select 1 from pg_policies where schemaname = 'storage' and tablename = 'objects'
                   and policyname = 'users replace objects in their own folder') then
        create policy "users replace objects in their own folder" on storage.objects for update to authenticated
            using ((storage.foldername(name))[1] = (select auth.uid())::text)
            with check ((storage.foldername(name))[1] = (select auth.uid())::text);
    end if;
    if not exists (select 1 from pg_policies where schemaname = 'storage' and tablename = 'objects'
                   and policyname = 'users remove objects from their own folder') then
        create policy "users remove objects from their own folder" on storage.objects for delete to authenticated
            using ((storage.foldername(name))[1] = (select auth.uid())::text);
    end if;
end
$do$;

-- Template PDFs and the PDFs of issued invoices, under "<uid>/...".
insert into storage.buckets (id, name, public)
values ('invoice-templates', 'invoice-templates', false)
on conflict (id) do nothing;
